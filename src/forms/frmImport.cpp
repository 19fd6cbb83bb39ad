#include "forms/frmImport.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 8640;

}  // namespace

frmImport::frmImport(Desk& owner)
    : Form{owner, "frmImport", " Import", {.width = 9000, .height = 6750}},
      lblReport{*this, "lblReport", "", {.place = {kLeft, 120, kWidth, 660}}},
      lblLines{*this, "lblLines", "&Lines of the file to look at:", {.place = {kLeft, 840, kWidth, 240}}},
      lstReport{*this,
                "lstReport",
                {{.caption = "Line", .width = 780},
                 {.caption = "Finding", .width = 3600},
                 {.caption = "What stands there", .width = 4080}},
                {.place = {kLeft, 1110, kWidth, 4950}, .tabIndex = 1}},
      cmdDone{*this, "cmdDone", "Done", {.place = {7200, 6180, 1620, 390}, .tabIndex = 2}} {}

}  // namespace tallyhut
