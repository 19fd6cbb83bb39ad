#include "forms/frmSections.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 8640;

LabelDesign Heading(double left, double top, double width) {
    return {.place = {left, top, width, 240}};
}

}  // namespace

frmSections::frmSections(Desk& owner)
    : Form{owner, "frmSections", " Sections", {.width = 9000, .height = 6750}},
      lblInForce{*this, "lblInForce", "This contest has:", Heading(kLeft, 120, 1800)},
      lblSections{*this, "lblSections", "", Heading(2040, 120, 6780)},
      lblLists{*this, "lblLists", "&Lists to choose from:", Heading(kLeft, 480, kWidth)},
      lstSections{*this,
                  "lstSections",
                  {{.caption = "List", .width = 2160},
                   {.caption = "Sections", .width = 1080},
                   {.caption = "What it is", .width = 5400}},
                  {.place = {kLeft, 750, kWidth, 1080}, .tabIndex = 1}},
      lblHolds{*this, "lblHolds", "&What it holds:", Heading(kLeft, 1950, kWidth)},
      lstHolds{*this,
               "lstHolds",
               {{.caption = "Code", .width = 720},
                {.caption = "Name", .width = 3240},
                {.caption = "Area", .width = 900},
                {.caption = "Typed for it", .width = 1620},
                {.caption = "Spotted as", .width = 2160}},
               {.place = {kLeft, 2220, kWidth, 3120}, .tabIndex = 2}},
      lblNote{*this, "lblNote", "", {.place = {kLeft, 5430, kWidth, 660}}},
      cmdUse{*this,
             "cmdUse",
             "&Use",
             {.place = {kLeft, 6180, 1620, 390},
              .toolTip = "Gives this contest the list selected above, and reads the log again",
              .tabIndex = 3}},
      cmdDone{*this, "cmdDone", "&Done", {.place = {7200, 6180, 1620, 390}, .tabIndex = 4}} {}

}  // namespace tallyhut
