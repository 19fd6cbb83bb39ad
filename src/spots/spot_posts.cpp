#include "spots/spot_posts.h"

#include <cmath>
#include <unordered_map>

#include "spots/spot_filter.h"
#include "spots/spot_line.h"
#include "values/format.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr Colour kWhite = 0xFFFFFF;
constexpr std::string_view kNeeded = "Needed!";
constexpr std::string_view kNeedSpotPrompt = "Needspot";

/// In MHz; throws ValueError where a float cannot hold it.
float Megahertz(double kilohertz) {
    const auto megahertz = static_cast<float>(kilohertz / 1000);
    if (!std::isfinite(megahertz)) {
        throw ValueError{"The frequency is out of range."};
    }
    return megahertz;
}

}  // namespace

void SpotPosts::BandMapSpots(std::string_view call, std::string_view frequency, std::string_view comment) {
    try {
        if (!call.empty() && call == contest.preferences.gOwnCall) {
            TellOwnCall(comment);
        }
        if (const std::optional<double> kilohertz = ParseNumber(frequency)) {
            Take(call, *kilohertz, comment);
        }
    } catch (const ValueError&) {
        // A frequency that no radio has: whoever types into a cluster must not stop the contest.
    } catch (const PlatformError&) {
        // A prompt that cannot be played.
    }
}

void SpotPosts::TellOwnCall(std::string_view comment) {
    panel.desk.dialogs.Beep();
    panel.message.WriteOn(kWhite, "You've been spotted! ");
    panel.form.lblDupe.SetBackColor(kWhite);
    panel.form.lblDupe.SetCaption("You've been spotted!  " + std::string{comment});
}

void SpotPosts::Take(std::string_view call, double kilohertz, std::string_view comment) {
    std::string post = UpperCase(comment);
    if (IsRequest(post)) {
        return;
    }
    post = post.substr(0, post.find('\r'));
    if (!MayBeOfTheContest(call)) {
        return;
    }
    const std::string section{SectionOfPrefix(call, contest.sections.List())};  // the list may change while events run
    Keep(call, kilohertz, post, section);
    drawMaps();
    MarkNeededSections();
    List(call, kilohertz, post, section);
}

void SpotPosts::Keep(std::string_view call, double kilohertz, std::string_view post, std::string_view section) {
    const float megahertz = Megahertz(kilohertz);
    table.Shift();
    Spot& spot = table.Newest();
    spot.SpotText = SpotTextOf(post, section);
    spot.SpotCall = call;
    spot.SpotFreq = megahertz;
    spot.SpotTime = panel.desk.clock.Now();
    spot.SpotPrefix = CallPrefix(call);
    spot.spotter = SpotterOf(post);
}

void SpotPosts::List(std::string_view call, double kilohertz, std::string_view post, std::string_view section) {
    if (listed.size() >= kMostListed) {
        listed.pop_back();
    }
    const PostTexts texts = PostTextsOf(post, section);
    listed.push_front({.row = {std::string{call}, PlainText(Megahertz(kilohertz)), table.SpotStatus, "Section",
                               texts.comment, texts.behind, texts.time, texts.locator},
                       .text = SpotTextOf(post, section),
                       .spotter = SpotterOf(post)});
    listChanged();
}

void SpotPosts::MarkNeededSections() {
    const Preferences& preferences = contest.preferences;
    if (preferences.gColorNeededSpots != 1) {
        return;
    }
    table.SpotStatus.clear();
    panel.desk.RunPending();
    const int count = contest.sections.gSectionCount;
    const std::unordered_map<std::string, int> newestRows = table.NewestRows();
    std::string needed;
    for (int i = 1; i <= count; ++i) {
        const ControlState& label = panel.form.Label10(i).State();
        const bool isOpen = label.foreColor != preferences.gColorWorked;  // needed, or marked by a post before
        if (!isOpen && label.foreColor != preferences.gColorNeeded) {
            continue;
        }
        const auto offer = newestRows.find(label.text);
        if (offer == newestRows.end()) {
            if (isOpen) {
                grid.ShowNeeded(i, preferences.gColorNeeded);
            }
            continue;
        }
        const bool isNew = offer->second == SpotTable::kNewest;
        if (isNew) {
            table.SpotStatus = kNeeded;
            needed += (needed.empty() ? "" : ", ") + label.text;
        }
        grid.ShowSpotted(i);
        if (isNew && preferences.gAudioAlert == 1 &&
            contest.sections.SectionQsos.at(static_cast<std::size_t>(i)) == 0) {
            prompts.BlindKeyPhone(kNeedSpotPrompt);
        }
    }
    AnnounceNeeded(needed);
}

void SpotPosts::AnnounceNeeded(std::string_view sections) const {
    if (!sections.empty()) {
        const Spot& spot = table.Newest();
        panel.desk.Announce("Needed: " + std::string{sections} + ", " + spot.SpotCall + " on " +
                            FormatNumber(spot.SpotFreq, "#.000"));
    }
}

}  // namespace tallyhut
