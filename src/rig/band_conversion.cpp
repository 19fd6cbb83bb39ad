#include "rig/band_conversion.h"

#include "contest/bands.h"
#include "values/format.h"

namespace tallyhut {

void BandConversion::BandFreqConversion(const float& Frequency) {
    const std::string_view read = ContestBand(Frequency);
    if (!read.empty() && read != band.preferences.gBand) {
        band.ChooseBand(read);
    }
    log.gFrq = FormatNumber(Frequency, "#####.##0");
}

}  // namespace tallyhut
