#include "views/licence_segments.h"

#include <algorithm>

#include "contest/bands.h"
#include "values/format.h"

namespace tallyhut {
namespace {

/// A record that opens a band. It is of no class, and no segment.
constexpr std::string_view kWholeBand = "O";
constexpr std::string_view kPicture = "#,###.##0";

std::string WordOf(std::string_view mode) {
    return std::string{mode == kPhone ? "Phone" : mode};
}

double ShareWithin(const LicenceBand& band, float frequency) {
    const double low = std::min(band.Low, band.High);
    const double high = std::max(band.Low, band.High);
    return high > low ? (frequency - low) / (high - low) : 0;
}

void AddSegment(LicenceBand& band, const BandPlanRow& row) {
    const double from = std::clamp(ShareWithin(band, std::min(row.Low, row.High)), 0.0, 1.0);
    const double to = std::clamp(ShareWithin(band, std::max(row.Low, row.High)), 0.0, 1.0);
    if (to > from) {
        band.segments.push_back({.word = WordOf(row.Mode), .from = from, .to = to, .Low = row.Low, .High = row.High});
    }
}

}  // namespace

std::optional<double> LicenceBand::ShareAt(float frequency) const {
    const double share = ShareWithin(*this, frequency);
    return Low != High && share >= 0 && share <= 1 ? std::optional{share} : std::nullopt;
}

std::vector<LicenceBand> BandsOfClass(const std::vector<BandPlanRow>& plan, std::string_view ClassLetter) {
    std::vector<LicenceBand> bands;
    for (const BandPlanRow& opening : plan) {
        if (opening.Mode != kWholeBand) {
            continue;
        }
        LicenceBand band{.Band = opening.Band, .Low = opening.Low, .High = opening.High};
        bool has = false;
        for (const BandPlanRow& row : plan) {
            if (row.Band == opening.Band && row.Class == ClassLetter && row.Mode != kWholeBand) {
                has = true;
                AddSegment(band, row);
            }
        }
        if (has) {
            bands.push_back(std::move(band));
        }
    }
    return bands;
}

std::string CaptionOf(const LicenceBand& band) {
    return band.Band + "  " + FormatNumber(band.Low, kPicture) + " - " + FormatNumber(band.High, kPicture);
}

}  // namespace tallyhut
