#include "spots/spot_filter.h"

#include <algorithm>
#include <array>

#include "values/text.h"

namespace tallyhut {
namespace {

/// Blocks of prefixes of the United States and Canada, from the first to the last. KH, KL and KP and those that share
/// them are sections of the contest like the states.
struct PrefixBlock {
    std::string_view first;
    std::string_view last;
};

constexpr std::array kNear{
    PrefixBlock{"K", "K"},   PrefixBlock{"N", "N"},   PrefixBlock{"W", "W"},   PrefixBlock{"AA", "AL"},
    PrefixBlock{"VA", "VG"}, PrefixBlock{"VO", "VO"}, PrefixBlock{"VX", "VY"}, PrefixBlock{"CF", "CK"},
    PrefixBlock{"CY", "CZ"}, PrefixBlock{"XJ", "XO"},
};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Behind a stroke: how a station is operated, not where.
bool IsManner(std::string_view part) {
    constexpr std::array<std::string_view, 6> kManners{"P", "M", "MM", "AM", "QRP", "R"};
    return std::ranges::all_of(part, IsDigit) || std::ranges::find(kManners, part) != kManners.end();
}

/// The part of a call that says where it is operated from: of two the shorter one, in whatever order they stand. In
/// front of the stroke M, P and R are prefixes of countries.
std::string_view PlaceOf(std::string_view call) {
    std::string_view place;
    while (!call.empty()) {
        const std::string_view part = call.substr(0, call.find('/'));
        if (place.empty() || (!IsManner(part) && part.size() < place.size())) {
            place = part;
        }
        call.remove_prefix(std::min(part.size() + 1, call.size()));
    }
    return place;
}

}  // namespace

std::string SpotterOf(std::string_view post) {
    constexpr std::string_view kBegin = "DE ";
    if (!post.starts_with(kBegin)) {
        return {};
    }
    const std::string spotter = Trim(post.substr(kBegin.size(), post.find(':') - kBegin.size()));
    return spotter.substr(0, spotter.find_first_of("- "));
}

bool IsNear(std::string_view call) {
    const std::string_view place = PlaceOf(call);
    return std::ranges::any_of(kNear, [place](const PrefixBlock& block) {
        const std::string_view prefix = place.substr(0, block.first.size());
        return prefix.size() == block.first.size() && prefix >= block.first && prefix <= block.last;
    });
}

SpotFilter::SpotFilter(const PacketSpotfrm& form, const Contest& contest)
    : neededOnly_{form.chkNeededOnly.Value()}, nearOnly_{form.chkNearOnly.Value()} {
    if (!neededOnly_) {
        return;
    }
    for (int i = 1; i <= contest.sections.gSectionCount; ++i) {
        if (contest.sections.SectionQsos.at(static_cast<std::size_t>(i)) == 0) {
            needed_.emplace_back(contest.sections.Code(i));
        }
    }
    std::ranges::sort(needed_);
}

bool SpotFilter::Shows(std::string_view text, std::string_view spotter) const {
    return (!nearOnly_ || IsNear(spotter)) && (!neededOnly_ || OffersNeeded(text));
}

bool SpotFilter::OffersNeeded(std::string_view text) const {
    return std::ranges::any_of(Words(text),
                               [this](const std::string& word) { return std::ranges::binary_search(needed_, word); });
}

}  // namespace tallyhut
