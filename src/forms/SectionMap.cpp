#include "forms/SectionMap.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kPaintAfterMs = 1;
constexpr Place kPicture{120, 120, 9360, 5940};
constexpr double kBelow = 6180;
constexpr double kButtons = 6600;
constexpr Place kPanelTitle{kPicture.left, kPicture.top, 1200, 200};
constexpr Place kCounty{kPicture.left, kPicture.top, 120, 120};

}  // namespace

SectionMap::SectionMap(Desk& owner)
    : Form{owner, "SectionMap", " Section Map", {.width = 9600, .height = 7200}},
      Picture1{*this, "Picture1", {.place = kPicture}},
      lblCounty{
          0, kLastCounty,
          [this](int i) { return std::make_unique<Label>(*this, "lblCounty", i, "", LabelDesign{.place = kCounty}); }},
      lblPanel{1, kLastPanel,
               [this](int i) {
                   return std::make_unique<Label>(*this, "lblPanel", i, "",
                                                  LabelDesign{.place = kPanelTitle, .visible = false});
               }},
      Label1{*this, "Label1", "Sections will change color when worked.", {.place = {120, kButtons, 4200, 300}}},
      lblWorked{*this, "lblWorked", "", {.place = {6000, kBelow, 1700, 300}}},
      lblNeeded{*this, "lblNeeded", "", {.place = {7800, kBelow, 1700, 300}}},
      lblRegion{*this, "lblRegion", "", {.place = {120, kBelow, 5700, 300}}},
      cmdSave{*this, "cmdSave", "&Save Picture", {.place = {6960, kButtons, 1380, 375}, .tabIndex = 1}},
      cmdDone{*this, "cmdDone", "Done", {.place = {8460, kButtons, 1020, 375}, .tabIndex = 2}},
      Timer1{*this, "Timer1", kPaintAfterMs, true} {
    lblCounty(0).SetVisible(false);
}

}  // namespace tallyhut
