#include "contest/call_area.h"

#include <algorithm>
#include <array>

namespace tallyhut {
namespace {

/// Calls whose first two characters lie between these.
struct CallBlock {
    std::string_view first;
    std::string_view last;
    CallArea area;
};

/// Blocks of the ITU's table, and within those of the United States the ones that its islands and Alaska have. The
/// first that holds a call is its own.
constexpr std::array kCallBlocks{
    CallBlock{"AH", "AH", CallArea::Pacific},   CallBlock{"KH", "KH", CallArea::Pacific},
    CallBlock{"NH", "NH", CallArea::Pacific},   CallBlock{"WH", "WH", CallArea::Pacific},
    CallBlock{"AL", "AL", CallArea::Alaska},    CallBlock{"KL", "KL", CallArea::Alaska},
    CallBlock{"NL", "NL", CallArea::Alaska},    CallBlock{"WL", "WL", CallArea::Alaska},
    CallBlock{"KP", "KP", CallArea::Caribbean}, CallBlock{"NP", "NP", CallArea::Caribbean},
    CallBlock{"WP", "WP", CallArea::Caribbean}, CallBlock{"AA", "AK", CallArea::Mainland},
    CallBlock{"K0", "KZ", CallArea::Mainland},  CallBlock{"N0", "NZ", CallArea::Mainland},
    CallBlock{"W0", "WZ", CallArea::Mainland},  CallBlock{"CF", "CK", CallArea::Canada},
    CallBlock{"CY", "CZ", CallArea::Canada},    CallBlock{"VA", "VG", CallArea::Canada},
    CallBlock{"VO", "VO", CallArea::Canada},    CallBlock{"VX", "VY", CallArea::Canada},
    CallBlock{"XJ", "XO", CallArea::Canada},
};

struct EntityArea {
    std::int32_t entity;
    CallArea area;
};

constexpr std::array kEntityAreas{
    EntityArea{kUnitedStates, CallArea::Mainland}, EntityArea{kCanada, CallArea::Canada},
    EntityArea{kAlaska, CallArea::Alaska},         EntityArea{kHawaii, CallArea::Pacific},
    EntityArea{kPuertoRico, CallArea::Caribbean},  EntityArea{kVirginIslands, CallArea::Caribbean},
};

/// KG4 and two letters; with one or three it is a call of the mainland.
bool IsOfGuantanamo(std::string_view call) {
    return call.starts_with("KG4") && call.size() == 5;
}

}  // namespace

std::string_view WordsFor(CallArea area) {
    switch (area) {
        case CallArea::Mainland:
            return "the mainland";
        case CallArea::Canada:
            return "Canada";
        case CallArea::Alaska:
            return "Alaska";
        case CallArea::Pacific:
            return "the Pacific";
        case CallArea::Caribbean:
            return "the Caribbean";
        case CallArea::Unknown:
            break;
    }
    return "an unknown area";
}

CallArea AreaOfCall(std::string_view call) {
    if (call.find('/') != std::string_view::npos || IsOfGuantanamo(call)) {
        return CallArea::Unknown;
    }
    const std::string_view begin = call.substr(0, 2);
    const auto* const block = std::ranges::find_if(
        kCallBlocks, [begin](const CallBlock& row) { return begin >= row.first && begin <= row.last; });
    return block == kCallBlocks.end() ? CallArea::Unknown : block->area;
}

CallArea AreaOfSection(const ListedSection& section) {
    const auto* const row = std::ranges::find(kEntityAreas, section.dxcc, &EntityArea::entity);
    return row == kEntityAreas.end() ? CallArea::Unknown : row->area;
}

}  // namespace tallyhut
