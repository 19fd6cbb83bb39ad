#include "forms/frmCheckLog.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 8640;
constexpr double kButtons = 6180;

}  // namespace

frmCheckLog::frmCheckLog(Desk& owner)
    : Form{owner, "frmCheckLog", " Check Log", {.width = 9000, .height = 6750}},
      lblFindings{*this, "lblFindings", "", {.place = {kLeft, 120, kWidth, 240}}},
      lstFindings{*this,
                  "lstFindings",
                  {{.caption = "Rec#", .width = 720},
                   {.caption = "Call", .width = 1440},
                   {.caption = "Field", .width = 1980},
                   {.caption = "Finding", .width = 4380}},
                  {.place = {kLeft, 390, kWidth, 5610}, .tabIndex = 1}},
      cmdEdit{*this,
              "cmdEdit",
              "&Edit",
              {.place = {kLeft, kButtons, 1620, 390}, .toolTip = "Opens the contact of the finding", .tabIndex = 2}},
      cmdDone{*this, "cmdDone", "Done", {.place = {7200, kButtons, 1620, 390}, .tabIndex = 3}} {}

}  // namespace tallyhut
