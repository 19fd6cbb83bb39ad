#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The spots of all bands from 160 to 2 metres, each band along a line of its own.
struct SpectrumMap : Form {
    static constexpr int kBands = 11;
    static constexpr int kCaptionsOfBand = 5;

    explicit SpectrumMap(Desk& owner);

    ControlArray<Label> lblHFSpots;   ///< 0 to 10, the bands
    ControlArray<Line> lineHF;        ///< 0 to 10, the low end first
    ControlArray<Label> lblFreqSpot;  ///< 0 to 54: five a band, the low end first
    ControlArray<Line> LineSpot;      ///< from a label to its mark, where it stands beside it
    ControlArray<Label> lblDXSpot;    ///< 0 to 49
    Label lblSpot;                    ///< the spot that is pointed at; has the focus while the keyboard points
};

}  // namespace tallyhut
