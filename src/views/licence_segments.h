#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "values/band_plan.h"

namespace tallyhut {

/// A segment of a band, told by shares of the band from 0 at its low end to 1 at its high end.
struct LicenceSegment {
    std::string word;  ///< "CW", "Phone", or the mode as the plan has it
    double from = 0;
    double to = 0;
    float Low = 0;  ///< MHz
    float High = 0;

    bool operator==(const LicenceSegment&) const = default;
};

/// A band that a class of licence may use some of. The plan's ends stand as they are, also where Low is the higher.
struct LicenceBand {
    std::string Band;
    float Low = 0;  ///< MHz
    float High = 0;
    std::vector<LicenceSegment> segments = {};

    /// The share of the band at which a frequency lies; nothing beyond its ends.
    std::optional<double> ShareAt(float frequency) const;
};

/// The most records of a plan that are shown.
inline constexpr std::size_t kMostPlanRows = 200;

/// The bands that have a segment for the class, in the plan's order. A segment is cut at the ends of its band; nothing
/// is left of one that lies beyond them.
std::vector<LicenceBand> BandsOfClass(const std::vector<BandPlanRow>& plan, std::string_view ClassLetter);

/// The caption of a band: its name, and its ends as the plan has them.
std::string CaptionOf(const LicenceBand& band);

}  // namespace tallyhut
