#include "log/log_reload.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct LogReloadTest : ProgramFixture {
    /// The number labels in a row: contacts, sections, sections to go, score, serial to send, rates.
    std::string Numbers() {
        return Main().lblTotCon.Caption() + '|' + Main().lblTotSec.Caption() + '|' + Main().lblsectogo.Caption() + '|' +
               Main().lblTotScore.Caption() + '|' + Main().lblNumCurCon.Caption() + '|' + Main().lblAQSO60.Caption() +
               '|' + Main().lblAQSO20.Caption();
    }
    int Qsos(std::string_view code) {
        return program->sections.SectionQsos.at(static_cast<std::size_t>(program->sections.Find(code)));
    }
    Colour ColourOf(std::string_view code) { return Main().Label10(program->sections.Find(code)).State().foreColor; }
};

TEST_F(LogReloadTest, EmptyExistingLogLoadsWithNoContacts) {
    StartWith({});
    EXPECT_EQ(program->log.gContactCount(), 0);
    EXPECT_EQ(Numbers(), "  0|  0|  83|  0|1|0|0");
    EXPECT_EQ(Main().ListView1.RowCount(), 0U);
}

TEST_F(LogReloadTest, FileOfNothingButEmptyLinesIsAnEmptyLog) {
    files.Put(kLogPath, "\r\n\r\n");
    Start();
    EXPECT_EQ(Numbers(), "  0|  0|  83|  0|1|0|0");
}

TEST_F(LogReloadTest, LogGoesOnFromTheLastSerialAndNotFromTheRow) {
    std::vector<Contact> contacts = ManyContacts(12);
    contacts.back().Ns = "500";
    StartWith(contacts);
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 501");
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 13);
    EXPECT_EQ(program->log.Row(13).Ns, "501");
}

TEST_F(LogReloadTest, UnknownSectionCountsAsAContactAndForNoSection) {
    StartWith({Worked("W1XX", "MDC"), Worked("W2XX", "XX")});
    EXPECT_EQ(Main().lblTotCon.Caption(), "  2");
    EXPECT_EQ(Main().lblTotSec.Caption(), "  1");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  4");
    int tallied = 0;
    for (const std::int16_t qsos : program->sections.SectionQsos) {
        tallied += qsos;
    }
    EXPECT_EQ(tallied, 1);
    EXPECT_EQ(Row(0), "2|137|88|A|W2XX|72|XX|11/07|21:04|40");
}

TEST_F(LogReloadTest, SectionOfTwoRecordsIsWorkedOnce) {
    StartWith({Worked("W1XX", "CT"), Worked("W2XX", "CT")});
    EXPECT_EQ(program->sections.gSectionsWorked, 1);
    EXPECT_EQ(Qsos("CT"), 2);
    EXPECT_EQ(Main().lblTotSec.Caption(), "  1");
    EXPECT_EQ(Main().lblsectogo.Caption(), "  82");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  4");
}

TEST_F(LogReloadTest, SectionIsComparedExactly) {
    StartWith({Worked("W1XX", "mdc"), Worked("W2XX", " MDC"), Worked("W3XX", "MD"), Worked("W4XX", "")});
    EXPECT_EQ(program->sections.gSectionsWorked, 0);
    EXPECT_EQ(program->log.gContactCount(), 4);
}

TEST_F(LogReloadTest, LabelsShowWorkedAndNeededSections) {
    stored.gColorWorked = 0x123456;
    stored.gColorNeeded = 0x654321;
    StartWith({Worked("W1XX", "WCF")});
    EXPECT_EQ(ColourOf("WCF"), 0x123456);
    EXPECT_EQ(ColourOf("GTA"), 0x654321);
    EXPECT_EQ(ColourOf("CT"), 0x654321);
}

TEST_F(LogReloadTest, NumbersHaveTwoBlanksAfterAReload) {
    clock.SetNow({2026, 11, 7, 21, 10, 0});
    StartWith({Worked("W1XX", "CT"), Worked("W2XX", "ME"), Worked("W3XX", "NH")});
    EXPECT_EQ(Numbers(), "  3|  3|  80|  18| 138|3|9");
}

TEST_F(LogReloadTest, FiveCharacterTimeLoadsAndListsLikeAnyOther) {
    Contact contact = Worked("W1XX");
    contact.Time = "09:04";
    StartWith({contact});
    EXPECT_EQ(program->log.Row(1).Time, "09:04");
    EXPECT_EQ(Row(0), "1|137|88|A|W1XX|72|MDC|11/07|9:04|40");
}

TEST_F(LogReloadTest, DateAndTimeThatAreNoneAreListedAsTheyAreAndTheReloadGoesOn) {
    Contact contact = Worked("W1XX");
    contact.Date = "today";
    contact.Time = "25:99";
    StartWith({contact, Worked("W2XX")});
    EXPECT_EQ(program->log.gContactCount(), 2);
    EXPECT_EQ(Row(1), "1|137|88|A|W1XX|72|MDC|today|25:99|40");
}

TEST_F(LogReloadTest, LinesMayEndInAnyManner) {
    const std::string line = R"("1","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")";
    files.Put(kLogPath, line + "\n" + line + "\r\n\r\n\n");
    Start();
    EXPECT_EQ(program->log.gContactCount(), 2);
}

TEST_F(LogReloadTest, HandWrittenBareFieldsLoad) {
    files.Put(kLogPath, "1, 88 ,A,W1XX,72,MDC,2026/11/07,21:04:33,40,14.2\r\n");
    Start();
    EXPECT_EQ(program->log.Row(1).Nr, "88");
    EXPECT_EQ(program->log.Row(1).Frq, "14.2");
    EXPECT_EQ(Qsos("MDC"), 1);
}

TEST_F(LogReloadTest, Exactly11000RecordsLoad) {
    StartWith(ManyContacts(11'000));
    EXPECT_EQ(program->log.gContactCount(), 11'000);
    EXPECT_EQ(Main().lblTotCon.Caption(), "  11000");
    EXPECT_EQ(Main().lblTotScore.Caption(), "  22000");
    EXPECT_EQ(Qsos("MDC"), 11'000);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(LogReloadTest, MenuReadsTheFileAnewAndKeepsNoCountOfBefore) {
    StartWith({Worked("W1XX", "CT"), Worked("W2XX", "ME")});
    PutLog({Worked("W3XX", "NH")});
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->log.Row(1).Call, "W3XX");
    EXPECT_EQ(program->sections.gSectionsWorked, 1);
    EXPECT_EQ(Qsos("CT"), 0);
    EXPECT_EQ(Qsos("NH"), 1);
    EXPECT_EQ(ColourOf("CT"), stored.gColorNeeded);
    EXPECT_EQ(ColourOf("NH"), stored.gColorWorked);
    EXPECT_EQ(Main().ListView1.RowCount(), 1U);
    EXPECT_EQ(Main().lblTotScore.Caption(), "  2");
}

TEST_F(LogReloadTest, ReloadKeepsWhatIsBeingTyped) {
    StartWith({Worked("W1XX")});
    Type("88aK1AB");
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(Fields(), "88|A|K1AB||");
}

TEST_F(LogReloadTest, ReloadAfterCommitsFindsWhatTheyLeft) {
    StartWith({});
    for (const char* exchange : {"1aK1AB72ct", "2bK2AB73ct", "3qK3AB74nt"}) {
        Type(exchange);
        Press("Enter");
    }
    const auto qsos = program->sections.SectionQsos;
    const std::vector<std::string> calls{program->log.Row(1).Call, program->log.Row(2).Call, program->log.Row(3).Call};
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->sections.SectionQsos, qsos);
    EXPECT_EQ(calls,
              (std::vector<std::string>{program->log.Row(1).Call, program->log.Row(2).Call, program->log.Row(3).Call}));
    EXPECT_EQ(Numbers(), "  3|  2|  81|  12| 4|3|9");
}

TEST_F(LogReloadTest, SavedCountIsTheFirstCountAbove0OfARun) {
    StartWith({});
    EXPECT_EQ(program->log.gSavedCount, 0);
    PutLog(ManyContacts(3));
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->log.gSavedCount, 3);
    PutLog(ManyContacts(7));
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->log.gSavedCount, 3);
}

TEST_F(LogReloadTest, MissingFileIsAFileError) {
    StartWith({Worked("W1XX")});
    files.contents.erase(kLogPath);
    EXPECT_EQ(EndStatusOf([&] { ChooseMenu(Main().mnuOpen); }), 1);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{kFileErrorLine});
    EXPECT_FALSE(files.contents.contains(kLogPath));
}

TEST_F(LogReloadTest, ReloadWritesNoFile) {
    StartWith({Worked("W1XX")});
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(LogReloadTest, RecordThatIsDamagedCountsWhileTheBoxStands) {
    PutLog({Worked("W1XX"), Worked("W2XX")});
    files.contents[kLogPath] += "\"3\",\"88\",\"A\"x\r\n";
    std::int32_t counted = 0;
    dialogs.onShow = [&] {
        counted = program->log.gContactCount();
        clock.Advance(60'000);
        TheDesk().RunTimersAndIo();
    };
    EXPECT_EQ(EndStatusOf([&] { Start(); }), 1);
    EXPECT_EQ(dialogs.boxes.back(), kFileErrorLine);
    EXPECT_EQ(counted, 3);
}

TEST_F(LogReloadTest, SectionOfTheContactBeyondTheTableIsNotWorked) {
    std::vector<Contact> contacts = ManyContacts(11'001);
    contacts.back().Sec = "EMA";
    PutLog(contacts);
    int worked = 0;
    dialogs.onShow = [&] { worked = program->sections.gSectionsWorked; };
    EXPECT_EQ(EndStatusOf([&] { Start(); }), 1);
    EXPECT_EQ(worked, 1);
}

TEST_F(LogReloadTest, TimersOfABoxThatStandsForAMinuteDoNoHarm) {
    PutLog(ManyContacts(11'001));
    dialogs.onShow = [&] {
        clock.Advance(60'000);
        TheDesk().RunTimersAndIo();
    };
    EXPECT_EQ(EndStatusOf([&] { Start(); }), 1);
    ASSERT_EQ(dialogs.boxes.size(), 2U) << "the question, and one box behind it";
    EXPECT_EQ(dialogs.boxes.back(), kFileErrorLine);
}

}  // namespace
}  // namespace tallyhut
