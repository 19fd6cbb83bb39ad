#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// North America, where the sections that are worked fill with colour.
struct SectionMap : Form {
    static constexpr int kLastCounty = 93;
    static constexpr int kLastPanel = 6;

    explicit SectionMap(Desk& owner);

    Raster Picture1;
    ControlArray<Label> lblCounty;  ///< 0 to 93: from 1 on a part of a section each, its middle the seed of the fill
    ControlArray<Label> lblPanel;   ///< 1 to 6, what the insets show
    Label Label1;
    Label lblWorked;
    Label lblNeeded;
    Label lblRegion;  ///< the section under the pointer
    Button cmdSave;
    Button cmdDone;
    Timer Timer1;  ///< once, when the form is on the screen
};

}  // namespace tallyhut
