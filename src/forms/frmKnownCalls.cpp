#include "forms/frmKnownCalls.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 7140;
constexpr double kScpTop = 1740;

LabelDesign NameAt(double top) {
    return {.place = {kLeft, top, 1200, 240}};
}

TextBoxDesign PathField(double top, int tabIndex, std::string toolTip) {
    return {.place = {1440, top - 60, 4560, 330},
            .maxLength = kLongestPath,
            .tabIndex = tabIndex,
            .fontSize = 11,
            .toolTip = std::move(toolTip)};
}

ButtonDesign Browse(double top, int tabIndex) {
    return {.place = {6120, top - 60, 1200, 330}, .tabIndex = tabIndex};
}

ButtonDesign Use(double top, int tabIndex) {
    return {.place = {kLeft, top + 390, 4800, 300}, .tabIndex = tabIndex};
}

LabelDesign CountOf(double top) {
    return {.place = {5100, top + 420, 2220, 240}};
}

}  // namespace

frmKnownCalls::frmKnownCalls(Desk& owner)
    : Form{owner, "frmKnownCalls", " Known Calls", {.width = 7500, .height = 4200}},
      lblHistoryFile{*this, "lblHistoryFile", "Call &history:", NameAt(240)},
      txtHistory{*this, "txtHistory", PathField(240, 1, "A text file whose line !!Order!! names Call, Sect and CK")},
      cmdHistory{*this, "cmdHistory", "&Browse", Browse(240, 2)},
      chkHistory{*this, "chkHistory", "&Fill in check and section", Use(240, 3)},
      lblHistory{*this, "lblHistory", "", CountOf(240)},
      lblScpFile{*this, "lblScpFile", "List of &calls:", NameAt(kScpTop)},
      txtScp{*this, "txtScp", PathField(kScpTop, 4, "A text file with one call a line")},
      cmdScp{*this, "cmdScp", "B&rowse", Browse(kScpTop, 5)},
      chkScp{*this, "chkScp", "&Show calls that hold what is typed", Use(kScpTop, 6)},
      lblScpCount{*this, "lblScpCount", "", CountOf(kScpTop)},
      lblScpNote{*this,
                 "lblScpNote",
                 "Where no list is chosen, MASTER.SCP in the folder of the contest counts.",
                 {.place = {kLeft, kScpTop + 840, kWidth, 240}}},
      cmdDone{*this, "cmdDone", "Done", {.place = {6120, 3630, 1200, 390}, .tabIndex = 7}} {}

}  // namespace tallyhut
