#include "forms/Form1.h"

#include <array>
#include <string_view>
#include <utility>

#include "contest/bands.h"
#include "contest/told_sections.h"

namespace tallyhut {
namespace {

constexpr double kRow = 270;
constexpr double kGridTop = 2750;

/// The main form's caption: the title, blanks up to a width of 50, and the address. The title alone is shown on
/// screens.
constexpr std::string_view kFormCaption = "Q7ZZQ's Tallyhut Log 4.7                          www.tallyhut.example";

constexpr std::array<std::string_view, 5> kEntryHeadings{"#", "Pr", "Call", "Ck", "Sec"};
constexpr std::array<double, 5> kEntryLefts{180, 1065, 1575, 3810, 4470};

constexpr std::array<std::string_view, 2> kLegend{"Needed", "Worked"};
constexpr std::array<std::string_view, 4> kStationHeadings{"Pr", "Call", "Ck", "   Sec"};

constexpr std::array<std::string_view, 6> kScoreCaptions{
    "Total Contacts.............",   "Total Sections Worked",   "Sections to go ............",
    "Total Score..................", "QSOs / Hr (last 60 min)", "QSOs / Hr (last 20 min)",
};

constexpr double GridLeft(int column) {
    return 4920 + column * 420.0;
}

LabelDesign GridHeading(int column) {
    return {.place = {GridLeft(column), kGridTop, 400, kRow}};
}

LabelDesign SentPart(int column) {
    return {.place = {1500 + column * 900.0, 330, 800, 330}, .fontSize = 14};
}

LabelDesign OffTimeLabel(int row, double left, double width, std::string toolTip) {
    constexpr double kTop = 2140;
    constexpr double kHeight = 170;
    return {.place = {left, kTop + row * kHeight, width, kHeight}, .toolTip = std::move(toolTip), .visible = false};
}

LabelDesign OffTimeCaption(int row) {
    return OffTimeLabel(row, 6150, 1100, "24 hours of the contest count; 30 empty minutes in a row are off");
}

LabelDesign OffTimeValue(int row) {
    return OffTimeLabel(row, 7260, 500, "");
}

LabelDesign ScoreValue(int row) {
    return {.place = {6400, 5750 + row * kRow, 620, kRow}};
}

/// The map of the spots stands where the list of contacts gives up its room.
constexpr Place kSpotMap{2940, kGridTop, 1800, 4270};
constexpr double kSpotScaleLeft = 4140;
constexpr double kSpotScaleTop = kGridTop + 150;
constexpr double kSpotScaleLength = 3970;
constexpr double kSpotScaleStep = kSpotScaleLength / 4;
constexpr double kSpotHeight = 200;
constexpr int kLastSpot = 49;

ListColumn Column(std::string_view caption, double width) {
    return {.caption = std::string{caption}, .width = width};
}

}  // namespace

Form1::Form1(Desk& owner)
    : Form{owner, "Form1", std::string{kFormCaption}, {.width = 9600, .height = 7200, .dialog = false}},
      lblEntryHeading{1, 5,
                      [this](int i) {
                          const auto at = static_cast<std::size_t>(i - 1);
                          return std::make_unique<Label>(*this, "lblEntryHeading", i, kEntryHeadings.at(at),
                                                         LabelDesign{.place = {kEntryLefts.at(at), 660, 600, 180}});
                      }},
      txtNum{*this,
             "txtNum",
             {.place = {180, 840, 840, 480}, .maxLength = 5, .tabIndex = 1, .fontSize = 18, .refusesPaste = "\""}},
      txtPre{*this,
             "txtPre",
             {.place = {1065, 840, 460, 480}, .maxLength = 1, .tabIndex = 2, .fontSize = 18, .refusesPaste = "\""}},
      txtCall{*this,
              "txtCall",
              {.place = {1575, 840, 2190, 480}, .maxLength = 12, .tabIndex = 3, .fontSize = 18, .refusesPaste = "\""}},
      txtCK{*this,
            "txtCK",
            {.place = {3810, 840, 610, 480}, .maxLength = 2, .tabIndex = 4, .fontSize = 18, .refusesPaste = "\""}},
      txtSec{*this,
             "txtSec",
             {.place = {4470, 840, 910, 480}, .maxLength = 4, .tabIndex = 5, .fontSize = 18, .refusesPaste = "\""}},
      cmdClear{
          *this,
          "cmdClear",
          "&Clear",
          {.place = {5440, 840, 480, 225}, .toolTip = "Click to clear entry fields or press ALT C", .tabStop = false}},
      lblSending{*this, "lblSending", "Sending", {.place = {180, 360, 560, 270}}},
      lblNumCurCon{*this, "lblNumCurCon", "", {.place = {750, 330, 620, 330}, .fontSize = 14}},
      lblStation{0, 3,
                 [this](int i) {
                     return std::make_unique<Label>(*this, "lblStation", i,
                                                    kStationHeadings.at(static_cast<std::size_t>(i)),
                                                    LabelDesign{.place = {1500 + i * 900.0, 150, 800, 180}});
                 }},
      Label1{*this, "Label1", "PRE", SentPart(0)},
      Label2{*this, "Label2", "CALL", SentPart(1)},
      Label3{*this, "Label3", "CK", SentPart(2)},
      Label4{*this, "Label4", "SEC", SentPart(3)},
      lblPostConTime{*this, "lblPostConTime", "Time", {.place = {5400, 150, 600, 180}, .visible = false}},
      txtPostConTime{
          *this, "txtPostConTime", {.place = {5400, 330, 700, 330}, .maxLength = 5, .tabIndex = 6, .visible = false}},
      lblPostConDate{*this, "lblPostConDate", "Date", {.place = {6150, 150, 900, 180}, .visible = false}},
      txtPostConDate{
          *this, "txtPostConDate", {.place = {6150, 330, 1100, 330}, .maxLength = 10, .tabIndex = 7, .visible = false}},
      lblDialog{*this,
                "lblDialog",
                "",
                {.place = {180, 1380, 5740, 360},
                 .toolTip = "It is not necessary to press Space or Tab to tab unless the Callsign includes a \"/\".",
                 .backColor = kDialogNormal,
                 .fontSize = 12}},
      lblHint{*this, "lblHint", "", {.place = {2700, 1790, 2700, 180}, .visible = false}},
      lblPossDup{*this, "lblPossDup", "               Possible Duplicates", {.place = {180, 1790, 5740, 180}}},
      lblDupe{*this, "lblDupe", "", {.place = {180, 1970, 5740, 270}}},
      lblScp{*this, "lblScp", "", {.place = {180, 2240, 5740, 210}, .visible = false}},
      cmdDup{*this,
             "cmdDup",
             "On",
             {.place = {5440, 1090, 480, 225},
              .toolTip = "Displaying partial dupes slows the program on older pc's.",
              .tabStop = false}},
      Label11{*this, "Label11", "UTC", {.place = {6150, 330, 600, 180}}},
      lblutctime{*this, "lblutctime", "", {.place = {6150, 510, 1700, 480}, .fontSize = 18}},
      lblLocalTime{*this, "lblLocalTime", "Local", {.place = {7800, 330, 600, 180}}},
      lblCurTime{*this, "lblCurTime", "", {.place = {7800, 510, 1000, 330}, .fontSize = 14}},
      Label16{*this, "Label16", "", {.place = {8850, 510, 500, 330}}},
      Label12{*this, "Label12", " Total Op Time", {.place = {6150, 1080, 1200, 180}}},
      lblttrack{*this, "lblttrack", "00:00:00", {.place = {6150, 1260, 1200, 330}, .fontSize = 14}},
      Label14{*this, "Label14", " Time On Band", {.place = {7800, 1080, 1200, 180}}},
      lbltimeon{*this, "lbltimeon", "00:00:00", {.place = {7800, 1260, 1200, 330}, .fontSize = 14}},
      lblClockState{*this, "lblClockState", "Stopped", {.place = {7200, 1080, 450, 180}}},
      cmdLogOn{*this,
               "cmdLogOn",
               "&Log \"Time On\"",
               {.place = {6150, 1650, 1400, 480},
                .toolTip = "Records On/Off times and controls duration clock.",
                .tabStop = false}},
      lblBandSwitch{*this, "lblBandSwitch", " Band", {.place = {7800, 1650, 600, 180}}},
      Label30{*this, "Label30", "", {.place = {7800, 1830, 600, 330}, .fontSize = 14}},
      lblMode{*this, "lblMode", "", {.place = {8450, 1830, 600, 330}, .fontSize = 12}},
      lblRig{*this, "lblRig", "", {.place = {7800, 2160, 1550, 240}}},
      lblLeftCaption{*this, "lblLeftCaption", "Left to operate", OffTimeCaption(0)},
      lblLeft{*this, "lblLeft", "", OffTimeValue(0)},
      lblOffCaption{*this, "lblOffCaption", "Silence", OffTimeCaption(1)},
      lblOff{*this, "lblOff", "", OffTimeValue(1)},
      lblRecentContacts{*this, "lblRecentContacts", "Recent Contacts", {.place = {180, 2480, 1600, kRow}}},
      cmdEdit{
          *this, "cmdEdit", "Edit Contact", {.place = {1900, 2480, 1000, kRow}, .tabStop = false, .visible = false}},
      cmdDelete{*this,
                "cmdDelete",
                "Delete Contact",
                {.place = {2950, 2480, 1000, kRow}, .tabStop = false, .visible = false}},
      cmdList{*this,
              "cmdList",
              "Last 20",
              {.place = {4000, 2480, 740, kRow},
               .toolTip = "List all or last 20 contacts (Listing all will slow the program)",
               .tabStop = false}},
      ListView1{*this,
                "ListView1",
                {Column("Rec#", 520), Column("Ns", 520), Column("Nr", 520), Column("P", 340), Column("Call", 920),
                 Column("Ck", 420), Column("Sec", 620), Column("Date", 720), Column("Time", 720), Column("Bnd", 520)},
                {.place = {180, kGridTop, 4560, 4270}, .tabStop = false}},
      lblSecWkd{*this, "lblSecWkd", "  Sections Worked", {.place = {4920, 2480, 1800, kRow}, .takesFocus = true}},
      lblSecOne{*this, "lblSecOne", "1", GridHeading(0)},
      lblSecTwo{*this, "lblSecTwo", "2", GridHeading(1)},
      lblSecThre{*this, "lblSecThre", "3", GridHeading(2)},
      lblSecFour{*this, "lblSecFour", "4", GridHeading(3)},
      lblSecFive{*this, "lblSecFive", "5", GridHeading(4)},
      lblSecSix{*this, "lblSecSix", "6", GridHeading(5)},
      lblSecSeven{*this, "lblSecSeven", "7", GridHeading(6)},
      lblSecEight{*this, "lblSecEight", "8", GridHeading(7)},
      lblSecNine{*this, "lblSecNine", "9", GridHeading(8)},
      lblSecZero{*this, "lblSecZero", "0", GridHeading(9)},
      lblSecCA{*this, "lblSecCA", "Canada", GridHeading(10)},
      lblLegend{0, 1,
                [this](int i) {
                    return std::make_unique<Label>(*this, "lblLegend", i, kLegend.at(static_cast<std::size_t>(i)),
                                                   LabelDesign{.place = {7000 + i * 900.0, 2480, 850, kRow}});
                }},
      Label10{1, static_cast<int>(SectionList::kMostSections),
              [this](int i) {
                  return std::make_unique<Label>(*this, "Label10", i, "",
                                                 LabelDesign{.visible = i <= ToldSections().Count()});
              }},
      lblDX{*this, "lblDX", "", {.place = kSpotMap, .visible = false, .takesFocus = true}},
      LineDX{*this, "LineDX", kSpotScaleLeft, kSpotScaleTop, kSpotScaleLeft, kSpotScaleTop + kSpotScaleLength},
      lblFreqSpot{0, 4,
                  [this](int i) {
                      const double top = kSpotScaleTop + i * kSpotScaleStep - kSpotHeight / 2;
                      return std::make_unique<Label>(
                          *this, "lblFreqSpot", i, "",
                          LabelDesign{.place = {kSpotScaleLeft + 30, top, 560, kSpotHeight}, .visible = false});
                  }},
      LineSpot{0, kLastSpot, [this](int i) { return std::make_unique<Line>(*this, "LineSpot", i, 0, 0, 0, 0); }},
      lblDXSpot{
          0, kLastSpot,
          [this](int i) {
              return std::make_unique<Label>(
                  *this, "lblDXSpot", i, "",
                  LabelDesign{.place = {kSpotScaleLeft - 355, kSpotScaleTop, 345, kSpotHeight}, .visible = false});
          }},
      txtDX{*this,
            "txtDX",
            {Column("Call", 400), Column("Freq", 350), Column("Status", 300), Column("", 0), Column("Comment", 750),
             Column("", 0), Column("Time", 0), Column("", 0)},
            {.place = kSpotMap, .tabStop = false, .visible = false}},
      lblScoreCaption{1, 6,
                      [this](int i) {
                          return std::make_unique<Label>(*this, "lblScoreCaption", i,
                                                         kScoreCaptions.at(static_cast<std::size_t>(i - 1)),
                                                         LabelDesign{.place = {4920, 5480 + i * kRow, 1450, kRow}});
                      }},
      lblTotCon{*this, "lblTotCon", "", ScoreValue(0)},
      lblTotSec{*this, "lblTotSec", "", ScoreValue(1)},
      lblsectogo{*this, "lblsectogo", "", ScoreValue(2)},
      lblTotScore{*this, "lblTotScore", "", ScoreValue(3)},
      lblAQSO60{*this, "lblAQSO60", "", ScoreValue(4)},
      lblAQSO20{*this, "lblAQSO20", "", ScoreValue(5)},
      mnuFile{*this, "mnuFile", "&File"},
      mnuOpen{mnuFile, "mnuOpen", "&Open"},
      mnuNew{mnuFile, "mnuNew", "&New"},
      mnuArchive{mnuFile, "mnuArchive", "Archive Current &Log"},
      mnuRestore{mnuFile, "mnuRestore", "&Restore from Archive or Backup"},
      mnuCabrillo{mnuFile, "mnuCabrillo", "&Write Cabrillo File"},
      mnuSummary{mnuFile, "mnuSummary", "Summary Shee&t"},
      mnuCheckLog{mnuFile, "mnuCheckLog", "Chec&k Log"},
      expADIF{mnuFile, "expADIF", "Export &ADIF Format"},
      expADIFX{mnuFile, "expADIFX", "ADIF With E&xchange"},
      mnuExport{mnuFile, "mnuExport", "&Export For Stationbook Import"},
      mnuImport{mnuFile, "mnuImport", "&Import"},
      mnuMakeHistory{mnuFile, "mnuMakeHistory", "Make Call Histor&y"},
      mnuCopyListtoClipboard{mnuFile, "mnuCopyListtoClipboard", "&Copy Listed Items to Clipboard"},
      mnuprintrec{mnuFile, "mnuprintrec", "&Print"},
      mnuPrintLog{mnuprintrec, "mnuPrintLog", "Print &Log"},
      mnuPrintDupe{mnuprintrec, "mnuPrintDupe", "Print &Dupe Sheet"},
      mnuPostContest{mnuFile, "mnuPostContest", "&Post Contest Mode"},
      mnuExit{mnuFile, "mnuExit", "E&xit"},
      mnuSettings{*this, "mnuSettings", "&Settings"},
      mnuSetup{mnuSettings, "mnuSetup", "&Setup"},
      mnuRig{mnuSettings, "mnuRig", "&Rig Interface", "Ctrl+R"},
      mnuCW{mnuSettings, "mnuCW", "&CW", "Ctrl+S"},
      mnuPhone{mnuSettings, "mnuPhone", "&Phone", "Ctrl+P"},
      mnuPacket{mnuSettings, "mnuPacket", "&DX Spotting", "Ctrl+D"},
      mnuBlind{mnuSettings, "mnuBlind", "&Voice Navigation"},
      mnuPorts{mnuSettings, "mnuPorts", "Serial P&orts"},
      mnuSections{mnuSettings, "mnuSections", "S&ections"},
      mnuKnownCalls{mnuSettings, "mnuKnownCalls", "&Known Calls"},
      mnuNetwork{mnuSettings, "mnuNetwork", "&Network"},
      mnuBand{*this, "mnuBand", "&Band"},
      mnu160{mnuBand, "mnu160", FindBand("160")->menuText},
      mnu80{mnuBand, "mnu80", FindBand("80")->menuText},
      mnu40{mnuBand, "mnu40", FindBand("40")->menuText},
      mnu20{mnuBand, "mnu20", FindBand("20")->menuText},
      mnu15{mnuBand, "mnu15", FindBand("15")->menuText},
      mnu10{mnuBand, "mnu10", FindBand("10")->menuText},
      mnuTabOrder{*this, "mnuTabOrder", "&TabOrder"},
      numopt{mnuTabOrder, "numopt", "Begin in # Field"},
      callopt{mnuTabOrder, "callopt", "Begin in Call Field"},
      mnuCallTwice{mnuTabOrder, "mnuCallTwice", "Begin in Call Field and pass through Call again"},
      mnuAppearance{*this, "mnuAppearance", "&Appearance"},
      mnuFormSize{mnuAppearance, "mnuFormSize", "&Form Size"},
      mnuTaskbar{mnuAppearance, "mnuTaskbar", "&Taskbar"},
      mnuColors{mnuAppearance, "mnuColors", "&Colors"},
      mnuDXSpotsColor{mnuAppearance, "mnuDXSpotsColor", "Color &Needed DX Spots Green"},
      mnuAudioAlert{mnuAppearance, "mnuAudioAlert", "&Audio Alert of Needed Spots"},
      mnuLook{mnuAppearance, "mnuLook", "&Look"},
      mnuLookDesktop{mnuLook, "mnuLookDesktop", "&Desktop"},
      mnuLookLight{mnuLook, "mnuLookLight", "&Light"},
      mnuLookDark{mnuLook, "mnuLookDark", "D&ark"},
      mnuView{*this, "mnuView", "&View"},
      mnuMap{mnuView, "mnuMap", "Section &Map"},
      mnuPrivileges{mnuView, "mnuPrivileges", "&Frequency Privileges", "Ctrl+F"},
      mnuViewSpectrumMap{mnuView, "mnuViewSpectrumMap", "HF &Spectrum Map", "Ctrl+B"},
      mnuGraph{mnuView, "mnuGraph", "Activity &Graph"},
      mnuBandStats{mnuView, "mnuBandStats", "&Band Statistics"},
      mnuCWStrings{mnuView, "mnuCWStrings", "&CW Strings", "Ctrl+W"},
      mnuRigTune{mnuView, "mnuRigTune", "Change F&requency", "Ctrl+G"},
      mnuOffTime{mnuView, "mnuOffTime", "&Off-Time Clock"},
      mnuReports{*this, "mnuReports", "&Reports"},
      mnuWriteLog{mnuReports, "mnuWriteLog", "Write ASCII &Log"},
      mnuWriteDupe{mnuReports, "mnuWriteDupe", "Write &Dupe Sheet"},
      mnuHelpTitle{*this, "mnuHelpTitle", "&Help"},
      mnuHelp{mnuHelpTitle, "mnuHelp", "&Help"},
      mnuAbout{mnuHelpTitle, "mnuAbout", "&About"},
      Timer1{*this, "Timer1", 60'000, true},
      Timer2{*this, "Timer2", 1'000, true} {
    expADIFX.yieldsLetter = true;  // operators end the program by it
    LineDX.SetVisible(false);
    for (int i = LineSpot.First(); i <= LineSpot.Last(); ++i) {
        LineSpot(i).SetVisible(false);
    }
}

}  // namespace tallyhut
