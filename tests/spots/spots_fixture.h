#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "spots/spot_posts.h"
#include "tests/log/program_fixture.h"
#include "values/text.h"

namespace tallyhut {

/// The post of a usual form from its spotter on, the comment in its columns.
inline std::string Comment(std::string_view frequency, std::string_view call, std::string_view comment) {
    std::string post = PadRight("de K3LR:", 12) + std::string(9 - std::min<std::size_t>(frequency.size(), 9), ' ');
    post = PadRight(post + std::string{frequency}, 23) + PadRight(call, 13) + PadRight(comment, 31) + "2104Z FN31";
    return post;
}

/// The whole program with a table of spots and posts that come by hand.
struct SpotsFixture : ProgramFixture {
    SpotTable table;
    std::unique_ptr<SpotPosts> posts;
    std::vector<std::string> prompts;

    /// With the operator's wish to have needed sections coloured.
    void StartColouring() {
        stored.gColorNeededSpots = 1;
        StartSpots();
    }
    void StartSpots() {
        Start();
        program->prompts.BlindKeyPhone = [this](std::string_view prompt) { prompts.emplace_back(prompt); };
        posts = std::make_unique<SpotPosts>(SpotPosts{program->logPart.panel, program->logPart.contest,
                                                      program->display.grid, program->prompts, table});
    }
    void Post(std::string_view call, std::string_view comment = "", std::string_view frequency = "14025.3") {
        posts->BandMapSpots(call, frequency, Comment(frequency, call, comment));
    }
    const Label& Section(std::string_view code) { return Main().Label10(program->sections.Find(code)); }
};

}  // namespace tallyhut
