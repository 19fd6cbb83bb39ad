#include <algorithm>

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

const std::string kPowerLine =
    "input \"Please enter your transmitter output power.\" \"Please enter the power value that you would like to "
    "record.  This is an optional value that will be included in each QSO record and displayed in Station Book's power "
    "output column.\" \"100\"";
const std::string kCommentLine =
    "input \"Please enter a comment.\" \"Please enter a comment that you would like to appear on each QSO record.  "
    "This is an optional description that will be displayed in Station Book's Comments column.\" \"November "
    "Sweepstakes Contest\"";
const std::string kSaveLine = R"(save "" "ADIF Files (*.adi) | *.adi" "/contest" "/contest/Tallyhut.adi" prompt)";

struct LogExportsTest : ProgramFixture {
    std::string Content(const std::string& name) {
        const std::string path = std::string{kFolder} + '/' + name;
        return files.contents.contains(path) ? files.contents.at(path) : "no file";
    }
    void ExportAdif(const std::string& power, const std::string& comment, const std::optional<std::string>& path) {
        dialogs.inputs = {power, comment};
        dialogs.files.emplace_back(path);
        ChooseMenu(Main().expADIF);
    }
};

TEST_F(LogExportsTest, AdifAsksForPowerCommentAndFileAndTellsOfTheFile) {
    StartWith({Worked("W1XX")});
    ExportAdif("5", "My comment", "/contest/out.adi");
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{
                                 kPowerLine,
                                 kCommentLine,
                                 kSaveLine,
                                 "message \"File Written Successfully.\" \"The file was successfully written to the "
                                 "directory:\r\n\r\n/contest/out.adi.\" OK Information",
                             }));
    EXPECT_EQ(Content("out.adi"),
              "ADIF Export from Q7ZZQ's Tallyhut Log 4.7\r\n"
              "Written by Alden Voss\r\n"
              "www.tallyhut.example    q7zzq@tallyhut.example\r\n"
              "<PROGRAMID:20>Q7ZZQ's Tallyhut Log\r\n"
              "Log exported on: 11/7/2026 9:04:33 PM\r\n"
              "\r\n"
              "<EOH>\r\n"
              "<Call:4>W1XX <Qso_Date:8:d>20261107 <Band:3>40M <Mode:2>CW\r\n"
              "<Tx_Pwr:1>5 <Time_On:4>2104 <DXCC:3>291 <State:2>MD <Cont:2>NA <Comment:10>My comment\r\n"
              "<eor>\r\n\r\n");
}

TEST_F(LogExportsTest, CancelledQuestionsLeaveTheirFieldsOutAndTheExportGoesOn) {
    StartWith({Worked("W1XX")});
    ExportAdif("", "", "/contest/out.adi");
    EXPECT_EQ(Content("out.adi").find("Tx_Pwr"), std::string::npos);
    EXPECT_EQ(Content("out.adi").find("Comment"), std::string::npos);
    EXPECT_TRUE(Content("out.adi").ends_with("<Cont:2>NA <eor>\r\n\r\n"));
}

TEST_F(LogExportsTest, CancelledSaveDialogEndsTheAdifExportSilently) {
    StartWith({Worked("W1XX")});
    ExportAdif("100", "x", std::nullopt);
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kPowerLine, kCommentLine, kSaveLine}));
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogExportsTest, FullDiskIsToldAndLeavesThePartialAdifFile) {
    StartWith({Worked("W1XX")});
    files.FailAt(1, "No space left on device");
    ExportAdif("100", "x", "/contest/out.adi");
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"/contest/out.adi: No space left on device\" OK Exclamation");
    EXPECT_TRUE(Content("out.adi").starts_with("ADIF Export from"));
    EXPECT_EQ(Content("out.adi").find("<eor>"), std::string::npos);
}

TEST_F(LogExportsTest, PathThatCannotBeOpenedIsTold) {
    StartWith({Worked("W1XX")});
    ExportAdif("100", "x", "/nowhere/out.adi");
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Unable to write file.\" \"/nowhere/out.adi: No such file or directory\" OK Exclamation");
}

TEST_F(LogExportsTest, RelativeNameMeansTheContestsFolder) {
    files.SetCurrentFolder("/elsewhere");
    StartWith({Worked("W1XX")});
    ExportAdif("100", "x", "out.adi");
    EXPECT_TRUE(Content("out.adi").starts_with("ADIF Export from"));
    EXPECT_FALSE(files.FileExists("/elsewhere/out.adi"));
    EXPECT_NE(dialogs.boxes.back().find("/contest/out.adi."), std::string::npos) << dialogs.boxes.back();
    ExportAdif("100", "x", "Log.txt");
    EXPECT_EQ(LogOnDisk(), LogText({Worked("W1XX")}));
}

TEST_F(LogExportsTest, LogItselfIsNotWrittenOver) {
    StartWith({Worked("W1XX")});
    ExportAdif("100", "x", kLogPath);
    EXPECT_EQ(LogOnDisk(), LogText({Worked("W1XX")}));
    EXPECT_TRUE(dialogs.boxes.back().starts_with("message \"Unable to write file.\""));
}

TEST_F(LogExportsTest, PhoneContestExportsSideband) {
    stored.gContestMode = 1;
    StartWith({Worked("W1XX")});
    ExportAdif("100", "x", "/contest/out.adi");
    EXPECT_NE(Content("out.adi").find("<Mode:3>SSB\r\n"), std::string::npos);
}

TEST_F(LogExportsTest, StationbookExportWritesBeepsAndTells) {
    StartWith({Worked("W1XX")});
    const int beeps = dialogs.beeps;
    ChooseMenu(Main().mnuExport);
    EXPECT_EQ(Content("LogExp.txt"),
              "\"W1XX\",\"2026/11/07\",\"40\",\"CW\",,\"21:04:33\",,,,\"USA\",\"MD\",,,,,\"ARRL November Sweepstakes "
              "Contest - Section - MDC\"\r\n");
    EXPECT_EQ(dialogs.beeps, beeps + 1);
    EXPECT_EQ(dialogs.boxes,
              (std::vector<std::string>{
                  "message \"Export Successful!\" \"LogExp.txt has been written to this program's working directory "
                  "/contest.  Import these contacts into the Station Book log program by clicking File, Import, and "
                  "navigating to this directory from the Stationbook program.\" OK Information"}));
}

TEST_F(LogExportsTest, EmptyLogWritesAnEmptyStationbookFileAndTellsAllTheSame) {
    Start();
    ChooseMenu(Main().mnuExport);
    EXPECT_EQ(Content("LogExp.txt"), "");
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(LogExportsTest, StationbookFileThatCannotBeWrittenIsToldAndTheContestGoesOn) {
    StartWith({Worked("W1XX")});
    files.FailAt(1, "No space left on device");
    ChooseMenu(Main().mnuExport);
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Tallyhut Log\" \"/contest/LogExp.txt: No space left on device\" OK Exclamation");
}

TEST_F(LogExportsTest, ClipboardGetsTheHeadingsAndTheListedContactsOldestFirst) {
    StartWith(ManyContacts(3));
    ChooseMenu(Main().mnuCopyListtoClipboard);
    EXPECT_EQ(clipboard.text,
              "Rec#\tNs\tNr\tP\tCall\tCk\tSec\tDate\tTime\tBnd\r\n"
              "1\t1\t88\tA\tW1X\t72\tMDC\t11/07\t21:04\t40\r\n"
              "2\t2\t88\tA\tW2X\t72\tMDC\t11/07\t21:04\t40\r\n"
              "3\t3\t88\tA\tW3X\t72\tMDC\t11/07\t21:04\t40\r\n");
}

TEST_F(LogExportsTest, ClipboardGetsTheLast20OrAll) {
    StartWith(ManyContacts(25));
    const auto lines = [this] { return std::ranges::count(clipboard.text, '\n'); };
    ChooseMenu(Main().mnuCopyListtoClipboard);
    EXPECT_EQ(lines(), 21);
    Click(Main().cmdList);
    ChooseMenu(Main().mnuCopyListtoClipboard);
    EXPECT_EQ(lines(), 26);
}

TEST_F(LogExportsTest, EmptyListCopiesItsHeadings) {
    Start();
    ChooseMenu(Main().mnuCopyListtoClipboard);
    EXPECT_EQ(clipboard.text, "Rec#\tNs\tNr\tP\tCall\tCk\tSec\tDate\tTime\tBnd\r\n");
}

TEST_F(LogExportsTest, AdifWithTheExchangeAsksTheSameTwoQuestions) {
    stored.gOwnCall = "W9ZZZ";
    StartWith({Worked("W1XX")});
    dialogs.inputs = {"5", "My comment"};
    dialogs.files.emplace_back("/contest/out.adi");
    ChooseMenu(Main().expADIFX);
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{
                                 kPowerLine,
                                 kCommentLine,
                                 kSaveLine,
                                 "message \"File Written Successfully.\" \"The file was successfully written to the "
                                 "directory:\r\n\r\n/contest/out.adi.\" OK Information",
                             }));
    EXPECT_NE(Content("out.adi").find("<SRX:2>88 <SRX_STRING:8>A 72 MDC "), std::string::npos);
    EXPECT_NE(Content("out.adi").find("<STATION_CALLSIGN:5>W9ZZZ <OPERATOR:5>W9ZZZ "), std::string::npos);
    EXPECT_NE(Content("out.adi").find("<CREATED_TIMESTAMP:15>20261107 210433 "), std::string::npos);
}

TEST_F(LogExportsTest, AdifWithTheExchangeNeverTakesThePlaceOfTheLog) {
    StartWith({Worked("W1XX")});
    const std::string before = LogOnDisk();
    dialogs.inputs = {"", ""};
    dialogs.files.emplace_back(kLogPath);
    ChooseMenu(Main().expADIFX);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_TRUE(dialogs.boxes.back().starts_with("message \"Unable to write file.\""));
}

}  // namespace
}  // namespace tallyhut
