#pragma once

#include "contest/contest.h"
#include "forms/SpectrumMap.h"
#include "log/panel.h"
#include "rig/rig_commands.h"
#include "spots/map_scale.h"
#include "spots/spot_table.h"

namespace tallyhut {

/// The spots of all bands at once, from the same table as the map of one band: also of bands where no contact can be
/// logged. Stations that are not worked yet are underlined.
struct HfSpectrum {
    SpectrumMap& form;
    Panel& panel;
    const Contest& contest;
    SpotTable& table;
    RigCommands& rig;

    SpotFilter filter = {};  ///< what the map shows

    void BandMapLabelDisplay();
    /// Writes and places the captions of all scales.
    void UpdateSpectrumScale();
    /// The rows of the table that have a place on the map: those of each band, the lowest frequency first.
    std::vector<std::vector<int>> RowsShown() const;

    /// The right button works the spot; any other takes it off the map.
    void lblDXSpot_MouseDown(int Index, MouseButton Button);
    /// Tells of the spot in the form's own line.
    void lblDXSpot_MouseMove(int Index);

private:
    struct Mark {
        double at;  ///< along the band's line
        int row;
    };

    void Draw();
    std::vector<Mark> MarksOf(int band) const;
    void DrawBand(int band, const std::vector<Mark>& marks);
    /// The spots of a band between two of its captions, which they must not cover.
    void DrawQuarter(const std::vector<Mark>& marks, int band, double from, double to);
    BandSpan ScaleOfBand(int band) const;
};

}  // namespace tallyhut
