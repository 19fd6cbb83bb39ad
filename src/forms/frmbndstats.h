#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// How the contacts are spread over the bands.
struct frmbndstats : Form {
    static constexpr int kBands = 6;
    static constexpr int kTotal = 12;

    explicit frmbndstats(Desk& owner);

    Label Label1;
    ControlArray<Label> Label3;      ///< 0 above the counts, 1 beside their total
    ControlArray<Label> Label2;      ///< 0 to 5, the bands
    ControlArray<Label> lblcon;      ///< 0 to 5 contacts of the bands, 6 to 11 their shares in percent, 12 all contacts
    ControlArray<Label> lblPercent;  ///< 0 to 5, behind the shares
    ControlArray<Raster> picShare;   ///< 0 to 5: a share, as long as it is
    Button Command1;                 ///< Close
};

}  // namespace tallyhut
