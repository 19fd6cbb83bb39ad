#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// Which segments of the bands a class of licence may use.
struct frmBandPlan : Form {
    explicit frmBandPlan(Desk& owner);

    Label Label1;    ///< since when the frequencies hold
    Label Label2;    ///< whose privileges are shown
    Label Label5;    ///< the heading
    Label Label3;    ///< CW, in the colour of its segments
    Label Label4;    ///< Phone
    Label lblRadio;  ///< the radio's present frequency and what is allowed on it, while a radio is polled
    Line Line1;
    Raster picPlan;      ///< the whole of each band, from end to end
    RuntimeLabels blbl;  ///< the bands
    RuntimeLabels priv;  ///< the segments
    RuntimeLabels bnlb;  ///< the scales of the bands
    Line LineRadio;      ///< the present frequency on the scale of its band
    Button Command1;
    Button Command2;
    Button Command3;
    Button Command4;
    Button Command5;
    Button Command6;
    Button Command7;  ///< Done
    Timer tmrRadio;
};

}  // namespace tallyhut
