#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "log/panel.h"
#include "log/prompts.h"
#include "log/section_grid.h"
#include "spots/spot_table.h"

namespace tallyhut {

/// A row of the list of spots, by the columns of txtDX.
using SpotListRow = std::array<std::string, 8>;

/// What a post means to the contest: whether it is kept, what section it offers, and whether that one is needed yet.
struct SpotPosts {
    static constexpr std::size_t kMostListed = 200;

    Panel& panel;
    const Contest& contest;
    SectionGrid& grid;
    const Prompts& prompts;
    SpotTable& table;

    /// The maps, as far as they are shown, are to be drawn anew.
    std::function<void()> drawMaps = [] {};
    /// The list has another row at its top.
    std::function<void()> listChanged = [] {};

    struct Listed {
        SpotListRow row;
        std::string text;  ///< as SpotText, for a filter; and its spotter
        std::string spotter;
    };
    std::deque<Listed> listed = {};  ///< the newest first

    /// Takes a post. A failure on the way ends the procedure silently; what was moved on by then stays so.
    ///
    /// @param frequency  kHz as it is read; a text that is none is no post
    /// @param comment    the post from "de" on
    void BandMapSpots(std::string_view call, std::string_view frequency, std::string_view comment);
    /// Shows which of the needed sections the posts offer, where the operator wants that. Events run in it.
    void MarkNeededSections();

private:
    void TellOwnCall(std::string_view comment);
    void Take(std::string_view call, double kilohertz, std::string_view comment);
    void Keep(std::string_view call, double kilohertz, std::string_view post, std::string_view section);
    void List(std::string_view call, double kilohertz, std::string_view post, std::string_view section);
    void AnnounceNeeded(std::string_view sections) const;
};

}  // namespace tallyhut
