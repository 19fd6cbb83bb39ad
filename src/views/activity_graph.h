#pragma once

#include "contest/contact_log.h"
#include "forms/GraphQSO.h"
#include "views/picture_file.h"
#include "views/rate_curve.h"

namespace tallyhut {

/// The rate of contacts over the contest, coloured by band, as the log stands when the form is loaded.
struct ActivityGraph {
    GraphQSO& form;
    const ContactLog& log;
    PictureFiles pictures;

    RateCurve curve = {};

    void GraphQSO_Load();
    void GraphQSO_Unload();
    /// The other background.
    void Command1_Click();
    void cmdSave_Click();
    /// Tells the moment and the rate at the pointer.
    void picGraph_MouseMove();
    /// The band of this index of the legend stands out until the pointer is on the graph again.
    void lblBnd_MouseMove(int index);

    /// As it stands now, on the screen.
    void Open();
    void DrawRateGraph();

    bool isDrawn = false;
    int pointedAt = -1;  ///< band of the legend; -1 for none

private:
    /// In which axes and texts are drawn on the present background.
    Colour TextColour() const;
    void MakeCurve();
    void LabelTimes();
    void LabelRates();
    void Draw();
    void AddLegend(Drawing& drawing) const;
    void AddAxes(Drawing& drawing) const;
    void AddCurve(Drawing& drawing) const;
    Point PlaceOf(int position) const;
    double WidthOf(Colour colour) const;
};

}  // namespace tallyhut
