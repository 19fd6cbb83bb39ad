#pragma once

#include <cstdint>
#include <optional>

#include "contest/contest.h"
#include "forms/Form1.h"
#include "forms/SectionMap.h"
#include "platform/screen.h"
#include "views/picture_file.h"
#include "views/section_outlines.h"

namespace tallyhut {

/// The map of the sections. What is worked is filled on the picture's pixels from the seeds, each section with one
/// random colour; the shapes that a host draws take their colours from there.
struct MapOfSections {
    SectionMap& form;
    const Form1& form1;  ///< whose grid of sections says what is worked
    const Contest& contest;
    const Screen& screen;
    PictureFiles pictures;
    std::string dataFolder;                  ///< where the map lies
    std::optional<std::uint32_t> seed = {};  ///< of the random colours, in place of the clock's

    SectionOutlines map = {};

    void SectionMap_Load();
    void SectionMap_Unload();
    void Timer1_Timer();
    void cmdSave_Click() const;
    void Picture1_MouseMove();
    void lblCounty_MouseMove(int index);

    /// As it stands now, on the screen.
    void Open();
    /// The contest has other sections: a map that is shown begins anew.
    void ShowOtherSections();

private:
    void CentreForm();
    void PlaceCounties();
    void HideCaptions();
    void NameInsets();
    void ShowCounts();
    void PaintWorked(RasterImage& image);
    Point SeedOf(int county) const;
    Point OnMap(const Point& onPicture) const;
    void ShowPicture(RasterImage image);
    void TellRegion(const MapRegion* region);
};

}  // namespace tallyhut
