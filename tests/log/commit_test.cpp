#include "log/commit.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct CommitTest : ProgramFixture {
    /// An empty log on the disk, the operating time on, the fields of a whole exchange, the focus in the section.
    void StartReady(int mode = 1, const std::vector<Contact>& contacts = {}) {
        StartWith(contacts, mode);
        program->time.gTimeOn = 1;
        FillExchange();
    }
    void FillExchange() {
        program->fields.gPassedCallTwice = true;
        Focus(Main().txtSec);
        FillAll("88", "A", "W1XX", "72", "MDC");
    }
    /// Scripts what comes in when the commit of the next Enter lets events run for the nth time. The first Collect is
    /// the one that finds the Enter itself.
    void AtPoint(int n, std::function<void()> script) { pump.OnCollect(n + 1, std::move(script)); }
    std::string Scores() {
        return Main().lblTotCon.Caption() + '|' + Main().lblTotSec.Caption() + '|' + Main().lblsectogo.Caption() + '|' +
               Main().lblTotScore.Caption();
    }
};

// A contact that is logged.

TEST_F(CommitTest, ContactReachesTablesFileListAndLabels) {
    StartReady();
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(LogOnDisk(), "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
    EXPECT_EQ(WriteRecord(program->log.Row(1)), LogOnDisk());
    EXPECT_EQ(Row(0), "1|1|88|A|W1XX|72|MDC|11/07|21:04|40");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Dialog(), " ");
    EXPECT_EQ(DialogGround(), 0xC0C000);
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(program->commit.gIncomplete, 0);
    EXPECT_EQ(program->commit.gBadSection, 0);
    EXPECT_EQ(program->duplicates.gIsDupe, 0);
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(CommitTest, NumbersHaveTheirBlanksAfterACommit) {
    StartReady();
    Press("Enter");
    EXPECT_EQ(Scores(), " 1|1|82|2");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  2");
}

TEST_F(CommitTest, FirstSerialIs1AndEveryNextOneIsThePreviousPlus1) {
    StartReady();
    Press("Enter");
    for (const char* call : {"K1AB", "K2AB"}) {
        FillExchange();
        Fill(Main().txtCall, call);
        Press("Enter");
    }
    EXPECT_EQ(program->log.Row(1).Ns + program->log.Row(2).Ns + program->log.Row(3).Ns, "123");
}

TEST_F(CommitTest, SerialIsWrittenWithoutBlanks) {
    Contact last = Worked("K1AB");
    last.Ns = " 0099 ";
    StartReady(1, {last});
    Press("Enter");
    EXPECT_EQ(program->log.Row(2).Ns, "100");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  101");
}

TEST_F(CommitTest, FirstAppendMakesTheFile) {
    StartInMode(1);
    files.contents.erase(kLogPath);
    program->logFile.mark.reset();  // there never was one
    Type("88aW1XX72mdc");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(CommitTest, TextIsStoredAsItStands) {
    StartReady();
    FillAll("00088", "M", "VE3AB/W4", "7", "ONE");
    Press("Enter");
    EXPECT_EQ(LogLines().at(0), R"("1","00088","M","VE3AB/W4","7","ONE","2026/11/07","21:04:33","40","")");
}

TEST_F(CommitTest, BandAndFrequencyAreStampedAndTheFrequencyOnlyOnce) {
    stored.gBand = "160";
    StartReady();
    program->log.gFrq = "1.815";
    Press("Enter");
    EXPECT_EQ(program->log.Row(1).Bnd, "160");
    EXPECT_EQ(program->log.Row(1).Frq, "1.815");
    EXPECT_EQ(program->log.gFrq, "");
}

TEST_F(CommitTest, FrequencyIsClearedByEveryEnter) {
    StartReady();
    Fill(Main().txtSec, "XX");
    program->log.gFrq = "14.2";
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 0);
    EXPECT_EQ(program->log.gFrq, "");
}

TEST_F(CommitTest, DateAndTimeAreUtcByTheOffset) {
    struct Case {
        DateTime local;
        float offset;
        const char* date;
        const char* time;
    };
    const Case cases[] = {
        {{2026, 11, 7, 21, 4, 33}, 0, "2026/11/07", "21:04:33"},
        {{2026, 11, 7, 21, 4, 33}, 5, "2026/11/08", "02:04:33"},
        {{2026, 11, 7, 21, 4, 33}, -3.5, "2026/11/07", "17:34:33"},
        {{2026, 11, 8, 2, 4, 33}, -3.5, "2026/11/07", "22:34:33"},
        {{2026, 11, 7, 18, 30, 0}, 5.5, "2026/11/08", "00:00:00"},
        {{2026, 11, 7, 18, 14, 59}, 5.75, "2026/11/07", "23:59:59"},
        {{2026, 12, 31, 23, 59, 59}, 1, "2027/01/01", "00:59:59"},
        {{2028, 2, 28, 20, 0, 0}, 8, "2028/02/29", "04:00:00"},
        {{2026, 3, 1, 0, 0, 1}, -12, "2026/02/28", "12:00:01"},
    };
    for (const Case& one : cases) {
        clock.SetNow(one.local);
        stored.gUtcOffset = one.offset;
        StartReady();
        Press("Enter");
        EXPECT_EQ(program->log.Row(1).Date, one.date) << one.offset;
        EXPECT_EQ(program->log.Row(1).Time, one.time) << one.offset;
        program.reset();
    }
}

TEST_F(CommitTest, FocusReturnsToTheModesFirstField) {
    for (const auto& [mode, first] : {std::pair{1, "txtNum"}, {2, "txtCall"}, {3, "txtCall"}}) {
        StartReady(mode);
        Press("Enter");
        EXPECT_EQ(FocusedField(), first) << mode;
        EXPECT_FALSE(program->fields.gPassedCallTwice) << mode;
        program.reset();
    }
}

TEST_F(CommitTest, EnterInTheCallFieldDoesNotFindTheContactJustLogged) {
    for (const int mode : {1, 2, 3}) {
        StartReady(mode);
        Focus(Main().txtCall);
        Press("Enter");
        EXPECT_EQ(program->log.gContactCount(), 1) << mode;
        EXPECT_EQ(program->duplicates.gIsDupe, 0) << mode;
        EXPECT_EQ(Dialog(), " ") << mode;
        EXPECT_EQ(dialogs.beeps, 0) << mode;
        program.reset();
    }
}

TEST_F(CommitTest, EnterBeforeTimeOnLogsAndStartsTheTime) {
    StartReady();
    program->time.gTimeOn = 0;
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->time.gTimeOn, 1);
    FillExchange();
    Fill(Main().txtCall, "K1AB");
    Press("Enter");
    EXPECT_EQ(program->time.gTimeOn, 1);
}

TEST_F(CommitTest, EnterThatLogsNothingStartsTheTimeToo) {
    StartWith({});
    Press("Enter");
    EXPECT_EQ(program->time.gTimeOn, 1);
}

// What lets no contact in.

TEST_F(CommitTest, EnterWithAllFieldsEmpty) {
    StartOnTime();
    Focus(Main().txtSec);
    Press("Enter");
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_EQ(dialogs.beeps, 0);
    EXPECT_EQ(program->log.gContactCount(), 0);
    EXPECT_EQ(program->commit.gIncomplete, 1);
    EXPECT_EQ(program->commit.gBadSection, 1);
    EXPECT_EQ(Operations(), 0);
}

struct MissingCase {
    std::array<std::string_view, 5> fields;
    std::string_view told;
    std::string_view focus;
};

TEST_F(CommitTest, EarliestMissingFieldHasTheFocusAndTheLastWriterTheLine) {
    const MissingCase cases[] = {
        {{"", "A", "W1XX", "72", "MDC"}, "Need Contact Number!", "txtNum"},
        {{"88", "", "W1XX", "72", "MDC"}, "Need Precedence!", "txtPre"},
        {{"88", "A", "", "72", "MDC"}, "Need Call Sign!", "txtCall"},
        {{"88", "A", "W1", "72", "MDC"}, "Need Call Sign!", "txtCall"},
        {{"88", "A", "W1XX", "", "MDC"}, "Need Check!", "txtCK"},
        {{"88", "A", "W1XX", "72", ""}, "Invalid Section", "txtSec"},
        {{"88", "A", "W1XX", "72", "XX"}, "Invalid Section", "txtSec"},
        {{"", "", "", "", "MDC"}, "Need Contact Number!", "txtNum"},
        {{"88", "", "", "", "MDC"}, "Need Precedence!", "txtPre"},
        {{"88", "A", "", "", "MDC"}, "Need Call Sign!", "txtCall"},
        {{"88", "A", "W1", "", ""}, "Invalid Section", "txtCall"},
        {{"88", "A", "W1XX", "", "XX"}, "Invalid Section", "txtCK"},
        {{"", "A", "W1XX", "", "MDC"}, "Need Contact Number!", "txtNum"},
    };
    for (const int mode : {1, 2, 3}) {
        for (const MissingCase& one : cases) {
            StartReady(mode);
            FillAll(one.fields[0], one.fields[1], one.fields[2], one.fields[3], one.fields[4]);
            const std::string before = Fields();
            Press("Enter");
            EXPECT_EQ(Dialog(), one.told) << before;
            EXPECT_EQ(FocusedField(), one.focus) << before;
            EXPECT_EQ(Fields(), before) << "the text stays for correction";
            EXPECT_EQ(program->log.gContactCount(), 0) << before;
            EXPECT_EQ(LogOnDisk(), "") << before;
            EXPECT_EQ(dialogs.beeps, 0) << before;
            program.reset();
        }
    }
}

TEST_F(CommitTest, ThreeCharactersAreACall) {
    StartReady();
    Fill(Main().txtCall, "W1A");
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(CommitTest, CompletenessAloneTellsOfTheSection) {
    StartReady();
    Fill(Main().txtSec, "");
    program->commit.frmcmp();
    EXPECT_EQ(Dialog(), "Need Section!");
    EXPECT_EQ(program->commit.gIncomplete, 1);
    FillExchange();
    program->commit.frmcmp();
    EXPECT_EQ(program->commit.gIncomplete, 0);
}

TEST_F(CommitTest, SectionMustBeACodeExactly) {
    for (const std::string_view section : {"MD", "mdc", "MDC ", " CT", "XX", "ONT"}) {
        StartReady();
        Fill(Main().txtSec, section);
        Press("Enter");
        EXPECT_EQ(program->commit.gBadSection, 1) << section;
        EXPECT_EQ(Dialog(), "Invalid Section") << section;
        EXPECT_EQ(Main().txtSec.Text(), section);
        EXPECT_EQ(program->log.gContactCount(), 0) << section;
        program.reset();
    }
}

TEST_F(CommitTest, TypedSectionMdIsCapitalisedAndRefused) {
    StartOnTime(1);
    Type("88aW1XX72md");
    Press("Enter");
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MD");
    Type("c");
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(CommitTest, IncompleteEntryKeepsTheSerialAndTheScore) {
    StartReady(1, {Worked("K1AB", "CT")});
    const std::string scores = Scores();
    Fill(Main().txtNum, "");
    Press("Enter");
    EXPECT_EQ(Scores(), scores);
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 138");
}

TEST_F(CommitTest, DuplicateWritesNothingAndCountsNothing) {
    StartReady(1, {Worked("W1XX")});
    const std::string scores = Scores();
    Press("Enter");
    EXPECT_TRUE(Dialog().starts_with("Duplicate W1XX ")) << Dialog();
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Scores(), scores);
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  138");
    EXPECT_EQ(Operations(), 0);
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(CommitTest, DuplicateClearsTheSecondLook) {
    StartReady(3, {Worked("W1XX")});
    ASSERT_TRUE(program->fields.gPassedCallTwice);
    Press("Enter");
    EXPECT_FALSE(program->fields.gPassedCallTwice);
    EXPECT_EQ(FocusedField(), "txtCall");
}

TEST_F(CommitTest, IncompleteDuplicateIsThrownAwayToo) {
    StartReady(1, {Worked("W1XX")});
    Fill(Main().txtCK, "");
    Press("Enter");
    EXPECT_TRUE(Dialog().starts_with("Duplicate W1XX ")) << Dialog();
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(FocusedField(), "txtNum");
}

// What runs when, inside of a commit.

TEST_F(CommitTest, RecordIsOnTheDiskBeforeTheFirstEventRuns) {
    StartReady();
    std::string log;
    AtPoint(1, [&] { log = LogOnDisk(); });
    Press("Enter");
    EXPECT_EQ(log, WriteRecord(program->log.Row(1)));
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(CommitTest, StepsShowInTheToldOrder) {
    StartReady();
    std::vector<std::string> seen;
    const auto look = [&] {
        seen.push_back(Main().lblTotCon.Caption() + '/' + std::to_string(Main().ListView1.RowCount()) + '/' + Dialog() +
                       '/' + std::to_string(program->sections.gSectionsWorked) + '/' + Main().lblTotScore.Caption() +
                       '/' + Fields() + '/' + Main().lblNumCurCon.Caption() + '/' + FocusedField());
    };
    Main().lblDialog.SetBackColor(0x0000FF);
    AtPoint(1, look);
    AtPoint(2, look);
    AtPoint(3, look);
    Press("Enter");
    EXPECT_EQ(seen, (std::vector<std::string>{
                        " 1/1//0/  0/88|A|W1XX|72|MDC/1/txtSec",
                        " 1/1//1/  0/88|A|W1XX|72|MDC/1/txtSec",
                        " 1/1/ /1/2/||||/  2/txtNum",
                    }));
}

TEST_F(CommitTest, EventsRunThreeTimesInACommitAndOnceInARefusedOne) {
    StartReady();
    int before = pump.Collects();
    Press("Enter");
    EXPECT_EQ(pump.Collects() - before, 1 + 3);
    before = pump.Collects();
    Press("Enter");
    EXPECT_EQ(pump.Collects() - before, 1 + 1);
}

TEST_F(CommitTest, KeysTypedDuringTheCommitBelongToTheNextContact) {
    for (const int point : {1, 2, 3}) {
        StartReady();
        AtPoint(point, [&] { Post("99bK1AB73ct"); });
        Press("Enter");
        EXPECT_EQ(LogLines().at(0), WriteRecord(program->log.Row(1)).substr(0, LogLines().at(0).size())) << point;
        EXPECT_EQ(program->log.Row(1).Sec, "MDC") << point;
        EXPECT_EQ(program->sections.SectionQsos[16], 1) << point;
        EXPECT_EQ(Fields(), "99|B|K1AB|73|CT") << point;
        program.reset();
    }
}

TEST_F(CommitTest, EnterTypedDuringTheCommitCommitsTheNextEntry) {
    StartReady();
    AtPoint(1, [&] {
        Post("99bK1AB73ct");
        PostNamed("Enter");
        Post("5");
    });
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 2);
    EXPECT_EQ(program->log.Row(2).Call, "K1AB");
    EXPECT_EQ(Fields(), "5||||");
}

TEST_F(CommitTest, ClicksAndSentKeysWaitUntilItHasReturned) {
    for (const int point : {1, 2, 3}) {
        StartReady();
        bool clickedInside = false;
        Main().cmdClear.Click = [&] { clickedInside = program->commit.committing; };
        AtPoint(point, [&] {
            TheDesk().PostClick(Main().cmdClear, kLeftButton);
            TheDesk().SendKeys(KeyForCharacter('7'));
        });
        Press("Enter");
        EXPECT_FALSE(clickedInside) << point;
        EXPECT_EQ(program->log.gContactCount(), 1) << point;
        EXPECT_EQ(Main().txtNum.Text(), "7") << point;
        program.reset();
    }
}

TEST_F(CommitTest, TimersAndDevicesRunAtAllThreePoints) {
    for (const int point : {1, 2, 3}) {
        StartReady();
        int timer = 0;
        int device = 0;
        Main().Timer1.Elapsed = [&] { timer += program->commit.committing ? 1 : 0; };
        IoSource source{TheDesk(), [&] { device += program->commit.committing ? 1 : 0; }};
        AtPoint(point, [&] {
            clock.Advance(60'000);
            source.Signal();
        });
        Press("Enter");
        EXPECT_EQ(timer, 1) << point;
        EXPECT_EQ(device, 1) << point;
    }
}

TEST_F(CommitTest, WaitingFocusEventsRunWhenTheFieldsAreEmpty) {
    StartReady();
    std::string seen;
    Main().txtSec.LostFocus = [&] { seen += "lost " + Fields() + (program->commit.committing ? " inside;" : ";"); };
    Press("Enter");
    EXPECT_EQ(seen, "lost |||| inside;");
}

TEST_F(CommitTest, CommitAskedForInsideACommitDoesNothing) {
    for (const int point : {1, 2, 3}) {
        StartReady();
        IoSource source{TheDesk(), [&] {
                            Fill(Main().txtCall, "K9ZZ");
                            program->commit.Mains();
                        }};
        AtPoint(point, [&] { source.Signal(); });
        Press("Enter");
        EXPECT_EQ(program->log.gContactCount(), 1) << point;
        EXPECT_EQ(program->log.Row(1).Call, "W1XX") << point;
        EXPECT_EQ(LogLines().size(), 1U) << point;
        EXPECT_FALSE(program->commit.committing);
    }
}

TEST_F(CommitTest, FrequencyThatComesInMeanwhileDoesNotReachTheNextContact) {
    StartReady();
    program->log.gFrq = "7.05";
    IoSource rig{TheDesk(), [&] { program->log.gFrq = "14.2"; }};
    AtPoint(1, [&] { rig.Signal(); });
    Press("Enter");
    EXPECT_EQ(program->log.Row(1).Frq, "7.05");
    EXPECT_EQ(program->log.gFrq, "");
}

TEST_F(CommitTest, TypingAheadAWholeWeekendLosesNoKey) {
    StartWith({});
    for (int n = 1; n <= 300; ++n) {
        Post(std::to_string(n) + "aK" + std::to_string(n % 10) + std::string(1, static_cast<char>('A' + n / 10 % 26)) +
             std::string(1, static_cast<char>('A' + n / 260)) + "72ct");
        PostNamed("Enter");
    }
    TheDesk().RunPending();
    EXPECT_EQ(program->log.gContactCount(), 300);
    EXPECT_EQ(LogLines().size(), 300U);
    EXPECT_EQ(program->log.Row(300).Nr, "300");
    EXPECT_EQ(program->log.Row(300).Ns, "300");
}

// A log that cannot be written.

TEST_F(CommitTest, FailedWriteNamesFileReasonAndExchangeAndEndsTheProgram) {
    for (const int contact : {1, 2, 3}) {
        files.contents.erase(kLogPath);
        StartOnTime();
        files.FailAt(contact, "No space left on device");
        std::optional<int> status;
        for (int n = 1; n <= contact; ++n) {
            EXPECT_EQ(status, std::nullopt);
            Type(std::to_string(n) + "aK" + std::to_string(n) + "AB72ct");
            status = EndStatusOf([&] { Press("Enter"); });
        }
        EXPECT_EQ(status, 1);
        const std::string number = std::to_string(contact);
        EXPECT_EQ(dialogs.boxes,
                  std::vector<std::string>{
                      "message \"Tallyhut Log\" \"The program must end.\n\n/contest/Log.txt: No space "
                      "left on device\n\nThis contact was not logged: " +
                      number + " A K" + number + "AB 72 CT\n\n/contest/Log.txt holds " + std::to_string(contact - 1) +
                      (contact == 2 ? " contact" : " contacts") + ".\" OK Critical"});
        EXPECT_EQ(LogLines().size(), static_cast<std::size_t>(contact - 1)) << "whole records only";
        EXPECT_TRUE(LogOnDisk().empty() || LogOnDisk().ends_with("\r\n"));
        program.reset();
        dialogs.boxes.clear();
        files.contents.erase(kLogPath);
    }
}

TEST_F(CommitTest, NoEventRunsWhileAFailureIsTold) {
    StartReady();
    files.FailAt(1, "Input/output error");
    bool ran = false;
    Main().Timer1.Elapsed = [&] { ran = true; };
    Main().txtNum.KeyPress = [&](int&) { ran = true; };
    dialogs.onShow = [&] {
        clock.Advance(120'000);
        Post("7");
        TheDesk().RunPending();
        TheDesk().RunTimersAndIo();
    };
    EXPECT_EQ(EndStatusOf([&] { Press("Enter"); }), 1);
    EXPECT_FALSE(ran);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(CommitTest, FailureLeavesListAndScoreUntouched) {
    StartReady();
    files.FailAt(1, "Input/output error");
    EXPECT_EQ(EndStatusOf([&] { Press("Enter"); }), 1);
    EXPECT_EQ(Main().ListView1.RowCount(), 0U);
    EXPECT_EQ(Scores(), "  0|  0|  83|  0");
}

TEST_F(CommitTest, The11001stContactEndsTheProgramAndNeverReachesTheFile) {
    PutLog(ManyContacts(11'000));
    StartOnTime();
    const std::string before = LogOnDisk();
    Type("88aK1AB72ct");
    EXPECT_EQ(EndStatusOf([&] { Press("Enter"); }), 1);
    EXPECT_EQ(program->log.gContactCount(), 11'001);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(files.appends.size(), 1U) << "the end of the operating time alone";
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("This contact was not logged: 88 A K1AB 72 CT"), std::string::npos)
        << dialogs.boxes[0];
}

TEST_F(CommitTest, The11000thContactIsLogged) {
    PutLog(ManyContacts(10'999));
    Start();
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 11'000);
    EXPECT_EQ(LogLines().size(), 11'000U);
    EXPECT_EQ(Main().lblTotCon.Caption(), " 11000");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  11001");
}

}  // namespace
}  // namespace tallyhut
