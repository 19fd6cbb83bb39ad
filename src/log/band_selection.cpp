#include "log/band_selection.h"

#include <algorithm>

namespace tallyhut {

void BandSelection::ChooseBand(std::string_view band) {
    preferences.gBand = band;
    form.Label30.SetCaption(preferences.gBand);
    time.gBandOnAt = desk.clock.Now();
    preferencesFile.SavePref();
    ShowBand();
    bandChanged();
}

void BandSelection::Label30_DblClick() {
    const auto* row = std::ranges::find(kBands, std::string_view{preferences.gBand}, &BandRow::band);
    if (row != kBands.end()) {
        ChooseBand(row->next);
    }
}

void BandSelection::ShowBand() {
    form.Label30.SetCaption(preferences.gBand);
    for (const BandRow& row : kBands) {
        (form.*row.entry).SetChecked(row.band == preferences.gBand);
    }
}

}  // namespace tallyhut
