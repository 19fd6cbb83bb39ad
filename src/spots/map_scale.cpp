#include "spots/map_scale.h"

#include <algorithm>

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr float kMargin = 0.001F;  ///< MHz around the spots
constexpr double kQuarter = 0.25;
constexpr std::string_view kMegahertz = "#.000";

/// Labels that touch, and how much room they have moved from where they would be.
struct Crowd {
    std::size_t count = 0;
    double sum = 0;  ///< of where each would have the crowd's first centre be
    double Start() const { return sum / static_cast<double>(count); }
};

}  // namespace

BandSpan ZoomedToSpots(const SpotTable& table, const BandSpan& band, const SpotFilter& filter) {
    float lowest = band.high;
    float highest = band.low;
    for (int i = 1; i <= SpotTable::kNewest; ++i) {
        const Spot& spot = table.Row(i);
        const float frequency = spot.SpotFreq;
        if (band.Holds(frequency) && filter.Shows(spot.SpotText, spot.spotter)) {
            lowest = std::min(lowest, frequency);
            highest = std::max(highest, frequency);
        }
    }
    return highest > lowest ? BandSpan{lowest - kMargin, highest + kMargin} : band;
}

ScaleCaptions CaptionsOf(const BandSpan& scale) {
    ScaleCaptions captions;
    for (int i = 0; i < kScaleCaptions; ++i) {
        const double value = scale.low + i * kQuarter * (scale.high - scale.low);
        captions.at(static_cast<std::size_t>(i)) = FormatNumber(RoundedTo(3, value), kMegahertz);
    }
    return captions;
}

BandSpan ScaleOf(const std::string& first, const std::string& last) {
    return {static_cast<float>(TrimmedNumber(first)), static_cast<float>(TrimmedNumber(last))};
}

double ShareOf(float frequency, const BandSpan& scale) {
    return (static_cast<double>(frequency) - scale.low) / (static_cast<double>(scale.high) - scale.low);
}

const AgeRow* AgeOf(const DateTime& posted, const DateTime& now) {
    const std::int64_t seconds = SecondsBetween(posted, now);
    const auto* const row = std::ranges::find_if(kAges, [seconds](const AgeRow& age) { return seconds < age.below; });
    return row == kAges.end() ? nullptr : row;
}

std::string HintOf(const Spot& spot, const DateTime& utc) {
    return spot.SpotCall + "  " + FormatNumber(spot.SpotFreq, kMegahertz) + "  " + FormatDateTime(utc, "hh:mm:ss");
}

/// Crowds that touch become one, in the middle of where its labels would be, as far as the ends allow.
std::vector<double> SpreadOut(const std::vector<double>& wanted, double height, double first, double last) {
    const double room = std::max(last - first, 0.0);
    const auto gaps = static_cast<double>(wanted.size()) - 1;
    const double step = gaps * height > room && gaps > 0 ? room / gaps : height;
    const auto startOf = [first, last, step](const Crowd& crowd) {
        const double length = static_cast<double>(crowd.count - 1) * step;
        return std::max(std::min(crowd.Start(), last - length), first);
    };
    std::vector<Crowd> crowds;
    for (const double centre : wanted) {
        Crowd crowd{.count = 1, .sum = centre};
        while (!crowds.empty()) {
            const Crowd& before = crowds.back();
            const auto already = static_cast<double>(before.count);
            if (startOf(before) + already * step <= startOf(crowd)) {
                break;
            }
            crowd = {.count = before.count + crowd.count,
                     .sum = before.sum + crowd.sum - static_cast<double>(crowd.count) * already * step};
            crowds.pop_back();
        }
        crowds.push_back(crowd);
    }
    std::vector<double> centres;
    for (const Crowd& crowd : crowds) {
        for (std::size_t i = 0; i < crowd.count; ++i) {
            centres.push_back(startOf(crowd) + static_cast<double>(i) * step);
        }
    }
    return centres;
}

}  // namespace tallyhut
