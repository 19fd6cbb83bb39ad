#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

const std::string kOldFormatLine =
    "message \"This traditional log submission format may not be valid after 1999!\" \"In my last correspondence with "
    "the ARRL, they indicated that the traditional log format will not be accepted after the 1999 contest.  In "
    "addition, they only want contest submissions as files (no computer generated printed logs). To write the new "
    "Cabrillo format (ASCIICab.txt) which incorporates the summary and log files, click Write Cabrillo Fmt from the "
    "Summary Sheet Form.\" OK Information";

constexpr const char* kTimes = "/contest/nsonoff.txt";
constexpr const char* kLogReport = "/contest/ASCIILog.txt";
constexpr const char* kDupeReport = "/contest/ASCIIDup.txt";

struct PaperReportsTest : ProgramFixture {
    std::vector<std::string> messages;  ///< what the message line shows in turn

    void Start(const std::vector<Contact>& contacts) {
        stored.gOwnCall = "W9ZZZ";
        StartWith(contacts);
        TheDesk().outlets.controlChanged = [this](Control& control) {
            const std::string text = control.State().text;
            const bool shown = &control == &Main().lblDialog && (messages.empty() || messages.back() != text);
            if (shown) {
                messages.push_back(text);
            }
        };
    }
};

TEST_F(PaperReportsTest, EachReportBeepsWarnsAndBlanksTheMessageLine) {
    files.Put(kTimes, "");
    Start({Worked("W1XX")});
    for (MenuEntry* entry : {&Main().mnuWriteLog, &Main().mnuWriteDupe, &Main().mnuPrintLog, &Main().mnuPrintDupe}) {
        dialogs.boxes.clear();
        dialogs.beeps = 0;
        Main().lblDialog.SetCaption("before");
        ChooseMenu(*entry);
        EXPECT_EQ(dialogs.beeps, 1) << entry->FullName();
        EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kOldFormatLine})) << entry->FullName();
        EXPECT_EQ(Dialog(), " ") << entry->FullName();
    }
}

TEST_F(PaperReportsTest, DupeFileTellsOfSortingAndWriting) {
    Start({Worked("W2XX"), Worked("W1XX")});
    ChooseMenu(Main().mnuWriteDupe);
    EXPECT_EQ(messages, (std::vector<std::string>{"Sorting", "Writing File", " "}));
    EXPECT_EQ(files.Read(kDupeReport), "W1XX\r\nW2XX\r\n\r\nTotal Contacts 2   Total Sections 1  Total Score 4\r\n");
}

TEST_F(PaperReportsTest, LogFileMergesContactsAndTimes) {
    files.Put(kTimes, "1,\"2026/11/07\",\"21:00:00\",\"00:00:00\"\r\n");
    Start({Worked("W1XX")});
    ChooseMenu(Main().mnuWriteLog);
    EXPECT_EQ(messages, (std::vector<std::string>{"Writing ASCII Log File.", " "}));
    EXPECT_EQ(files.Read(kLogReport),
              " Logged ON  at 2026/11/07  21:00:00\r\n"
              "40  2026/11/072104 137     88     A W1XX      72 MDC 1 New!   2\r\n");
}

TEST_F(PaperReportsTest, LogReportTakesOverWhatTheFileHolds) {
    files.Put(kTimes, "");
    Start({Worked("W1XX")});
    PutLog({Worked("W1XX"), Worked("W2XX", "CT")});
    ChooseMenu(Main().mnuWriteLog);
    EXPECT_EQ(program->log.gContactCount(), 2);
    EXPECT_EQ(program->log.Row(2).Call, "W2XX");
    EXPECT_EQ(program->sections.gSectionsWorked, 2);
    EXPECT_EQ(Main().lblTotCon.Caption(), "  2");
    EXPECT_EQ(Main().lblTotSec.Caption(), "  2");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  8");
    EXPECT_EQ(Row(0), "2|137|88|A|W2XX|72|CT|11/07|21:04|40");
}

TEST_F(PaperReportsTest, GridHasTheReportsOwnColoursUntilTheNextReload) {
    files.Put(kTimes, "");
    stored.gColorWorked = 0x00FF00;
    stored.gColorNeeded = 0x0000FF;
    Start({Worked("W1XX", "MDC")});
    ChooseMenu(Main().mnuWriteLog);
    EXPECT_EQ(Main().Label10(16).State().foreColor, 0xFF0000);
    EXPECT_EQ(Main().Label10(1).State().foreColor, 128);
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(Main().Label10(16).State().foreColor, 0x00FF00);
    EXPECT_EQ(Main().Label10(1).State().foreColor, 0x0000FF);
}

TEST_F(PaperReportsTest, MissingTimeRecordsLeaveEverythingAsItWas) {
    Start(ManyContacts(3));
    const std::string score = Main().lblTotScore.Caption();
    for (MenuEntry* entry : {&Main().mnuWriteLog, &Main().mnuPrintLog}) {
        ChooseMenu(*entry);
        EXPECT_EQ(program->log.gContactCount(), 3);
        EXPECT_EQ(program->sections.gSectionsWorked, 1);
        EXPECT_EQ(Main().lblTotScore.Caption(), score);
        EXPECT_EQ(Dialog(), " ");
    }
    EXPECT_FALSE(files.FileExists(kLogReport));
    EXPECT_TRUE(printer.documents.empty());
}

TEST_F(PaperReportsTest, EditBehindAReportWithoutTimeRecordsKeepsTheWholeLog) {
    Start(ManyContacts(3));
    ChooseMenu(Main().mnuWriteLog);
    pump.OnWait([this] {
        program->editForm.txtEditCk.SetText("99");
        TheDesk().PostClick(program->editForm.cmdDone, kLeftButton);
    });
    TheDesk().PostRowClick(Main().ListView1, 0, kRightButton);
    TheDesk().RunPending();
    std::vector<Contact> edited = ManyContacts(3);
    edited.back().Ck = "99";
    EXPECT_EQ(LogOnDisk(), LogText(edited));
}

TEST_F(PaperReportsTest, FailuresEndAReportSilently) {
    files.Put(kTimes, "");
    Start({Worked("W1XX")});
    for (MenuEntry* entry : {&Main().mnuWriteLog, &Main().mnuWriteDupe}) {
        dialogs.boxes.clear();
        files.FailAt(1, "No space left on device");
        ChooseMenu(*entry);
        EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{kOldFormatLine}));
        EXPECT_EQ(Dialog(), " ");
        EXPECT_EQ(program->log.gContactCount(), 1);
    }
    printer.FailAt(1, "Out of paper");
    ChooseMenu(Main().mnuPrintDupe);
    EXPECT_EQ(printer.aborted.size(), 1U);
}

TEST_F(PaperReportsTest, PrintedReportsAreDocumentsOfPages) {
    files.Put(kTimes, "");
    Start(ManyContacts(60));
    ChooseMenu(Main().mnuPrintLog);
    ChooseMenu(Main().mnuPrintDupe);
    ASSERT_EQ(printer.documents.size(), 2U);
    EXPECT_EQ(printer.documents.at(0).pages.size(), 2U);
    EXPECT_EQ(printer.documents.at(0).pages.at(0).size(), 56U);
    EXPECT_EQ(printer.documents.at(1).pages.size(), 2U);
    EXPECT_EQ(printer.documents.at(1).pages.at(0).at(8).text, "    W10X");
}

TEST_F(PaperReportsTest, CancelledPrintLeavesEverythingAsItWas) {
    files.Put(kTimes, "");
    Start({Worked("W1XX")});
    PutLog({Worked("W1XX"), Worked("W2XX")});
    printer.cancels = true;
    ChooseMenu(Main().mnuPrintLog);
    EXPECT_EQ(program->log.gContactCount(), 1);
    printer.cancels = false;
    printer.cancelsPreview = true;
    ChooseMenu(Main().mnuPrintLog);
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_TRUE(printer.documents.empty());
}

}  // namespace
}  // namespace tallyhut
