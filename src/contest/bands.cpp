#include "contest/bands.h"

#include <algorithm>

namespace tallyhut {
namespace {

bool IsOfContest(const Band& band) {
    return !band.readings.IsEmpty();
}

}  // namespace

const Band* FindBand(std::string_view name) {
    const auto* row = std::ranges::find(kBandTable, name, &Band::name);
    return row == kBandTable.end() ? nullptr : row;
}

std::string_view ContestBand(float frequency) {
    const auto* row =
        std::ranges::find_if(kBandTable, [frequency](const Band& band) { return band.readings.Holds(frequency); });
    return row == kBandTable.end() ? std::string_view{} : row->name;
}

std::string_view NextContestBand(std::string_view name) {
    const Band* present = FindBand(name);
    if (present == nullptr || !IsOfContest(*present)) {
        return {};
    }
    const auto* next = std::find_if(present + 1, kBandTable.end(), IsOfContest);
    return (next == kBandTable.end() ? std::ranges::find_if(kBandTable, IsOfContest) : next)->name;
}

std::string_view SegmentMode(float frequency) {
    for (const Band& band : kBandTable) {
        for (const ModeSegment& segment : band.modes) {
            if (segment.span.Holds(frequency)) {
                return segment.mode;
            }
        }
    }
    return {};
}

}  // namespace tallyhut
