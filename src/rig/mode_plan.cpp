#include "rig/mode_plan.h"

#include <algorithm>
#include <array>

#include "contest/bands.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::size_t kMostRows = 200;
constexpr std::string_view kWidestClass = "E";
constexpr std::string_view kNeverCommanded = "160";
constexpr std::array<std::string_view, 3> kLowerSideband{"80", "60", "40"};

}  // namespace

std::vector<BandPlanRow> ModePlanOf(std::string_view text) {
    BandPlan plan;
    try {
        plan = ReadBandPlan(text);
    } catch (const ValueError&) {
        // An empty file is no plan.
    }
    std::erase_if(plan.rows, [](const BandPlanRow& row) { return row.Class != kWidestClass; });
    plan.rows.resize(std::min(plan.rows.size(), kMostRows));
    return std::move(plan.rows);
}

std::string ModeForFrequency(const std::vector<BandPlanRow>& plan, float Frequency) {
    const auto row = std::ranges::find_if(
        plan, [Frequency](const BandPlanRow& segment) { return segment.Low < Frequency && Frequency < segment.High; });
    if (row == plan.end() || row->Band == kNeverCommanded) {
        return {};
    }
    if (row->Mode == kPhone) {
        return std::ranges::find(kLowerSideband, row->Band) == kLowerSideband.end() ? "USB" : "LSB";
    }
    return row->Mode;
}

}  // namespace tallyhut
