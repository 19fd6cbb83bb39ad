#pragma once

#include <array>

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// A band that the graph has a colour for.
struct GraphBand {
    std::string_view caption;
    Colour colour;
};

inline constexpr std::array<GraphBand, 7> kGraphBands{{
    {"160", FromRgb(255, 255, 255)},
    {"80", FromRgb(0, 0, 255)},
    {"40", FromRgb(255, 0, 0)},
    {"20", FromRgb(0, 255, 0)},
    {"15", FromRgb(128, 255, 255)},
    {"10", FromRgb(255, 0, 255)},
    {"6", FromRgb(255, 255, 0)},
}};

/// The rate of contacts over the whole contest.
struct GraphQSO : Form {
    static constexpr int kTimes = 14;  ///< parts of the time axis
    static constexpr int kRates = 16;  ///< parts of the rate axis

    /// What of the form the picture takes, and in the picture's own corner of it the plot; design units.
    static constexpr Place kPicture{120, 120, 9360, 6300};
    static constexpr Place kPlot{720, 480, 8280, 5160};
    /// In the picture: the sample of a band's line in the legend.
    static constexpr Place SampleOf(int band) { return {1380 + band * 1080.0, 240, 420, 0}; }

    explicit GraphQSO(Desk& owner);

    Raster picGraph;
    ControlArray<Label> lblY;     ///< 0 to 16, the lowest first
    ControlArray<Label> lblTime;  ///< 0 to 14
    ControlArray<Label> lblDate;  ///< 0 to 14
    Label Label1;
    ControlArray<Label> lblBnd;  ///< 0 to 6, the legend
    Line LineHover;              ///< where the pointer is in time
    Label lblHover;              ///< the moment and the rate there
    Button Command1;             ///< another background
    Button cmdSave;
    Button cmdDone;
};

}  // namespace tallyhut
