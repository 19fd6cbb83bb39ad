#include "log/band_selection.h"

#include "contest/bands.h"

namespace tallyhut {

void BandSelection::ChooseBand(std::string_view band) {
    preferences.gBand = band;
    form.Label30.SetCaption(preferences.gBand);
    time.BeginBand();
    preferencesFile.SavePref();
    ShowBand();
    bandChanged();
}

void BandSelection::Label30_DblClick() {
    if (const std::string_view next = NextContestBand(preferences.gBand); !next.empty()) {
        ChooseBand(next);
    }
}

void BandSelection::ShowBand() {
    form.Label30.SetCaption(preferences.gBand);
    for (const BandRow& row : kBands) {
        (form.*row.entry).SetChecked(row.band == preferences.gBand);
    }
}

}  // namespace tallyhut
