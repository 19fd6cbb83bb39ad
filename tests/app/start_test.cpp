#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

struct StartTest : ProgramFixture {
    std::optional<int> StatusOfStart() {
        return EndStatusOf([&] { Start(); });
    }
    /// Of a start that ends before it asks anything.
    std::optional<int> StatusOfRefusedStart() {
        MakeProgram();
        return EndStatusOf([&] { program->Start(); });
    }
};

TEST_F(StartTest, AnEmptyLogShowsNothingWorked) {
    Start();
    EXPECT_TRUE(Main().IsActive());
    EXPECT_EQ(program->log.gContactCount(), 0);
    EXPECT_EQ(Main().lblTotCon.Caption(), "  0");
    EXPECT_EQ(Main().lblsectogo.Caption(), "  83");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "1");
    EXPECT_EQ(Dialog(), "Select a band from the menu bar and click Log \"Time On\" below!");
    EXPECT_EQ(DialogGround(), 0xC0C000);
    EXPECT_EQ(dialogs.beeps, 0);
    EXPECT_EQ(program->time.gTimeOn, 0);
}

TEST_F(StartTest, ExistingLogIsLoaded) {
    StartWith(ManyContacts(25));
    EXPECT_EQ(program->log.gContactCount(), 25);
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 26");
    EXPECT_EQ(Main().ListView1.RowCount(), 20U);
    EXPECT_EQ(program->log.gSavedCount, 25);
}

TEST_F(StartTest, NextRunFindsEveryContact) {
    StartInMode(1);
    Type("88aW1XX72mdc");
    Press("Enter");
    Type("89bK1AB73ct");
    Press("Enter");
    const Contact first = program->log.Row(1);
    const Contact second = program->log.Row(2);
    program.reset();
    Start();
    ASSERT_EQ(program->log.gContactCount(), 2);
    EXPECT_EQ(program->log.Row(1), first);
    EXPECT_EQ(program->log.Row(2), second);
}

TEST_F(StartTest, FolderHeldByAnotherProgramIsTold) {
    files.lockedFolders.insert(kFolder);
    PutLog(ManyContacts(1));
    EXPECT_EQ(StatusOfRefusedStart(), 1);
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{
                  "message \"Tallyhut Log\" \"Another Tallyhut Log is already running in the folder /contest.\" OK "
                  "Critical"});
    EXPECT_FALSE(Main().IsLoaded());
}

TEST_F(StartTest, SecondProgramOnAFolderEndsAndTheFirstGoesOn) {
    Start();
    sim::Clock clock2;
    sim::EventPump pump2{clock2};
    sim::Dialogs dialogs2;
    sim::TcpSockets sockets2{pump2};
    sim::DatagramSockets datagrams2{clock2, pump2};
    Program second{Lend({.clock = &clock2,
                         .pump = &pump2,
                         .dialogs = &dialogs2,
                         .tcpSockets = &sockets2,
                         .datagramSockets = &datagrams2}),
                   kFolder};
    EXPECT_EQ(EndStatusOf([&] { second.Start(); }), 1);
    EXPECT_EQ(dialogs2.boxes.size(), 1U);
    Type("88aW1XX72mdc");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(StartTest, FolderIsFreeWhenTheProgramHasEnded) {
    Start();
    program.reset();
    EXPECT_EQ(StatusOfStart(), std::nullopt);
}

TEST_F(StartTest, FolderThatCannotBeWrittenIsTold) {
    files.readOnlyFolders.insert(kFolder);
    PutLog(ManyContacts(1));
    EXPECT_EQ(StatusOfRefusedStart(), 1);
    EXPECT_EQ(
        dialogs.boxes,
        std::vector<std::string>{
            "message \"Tallyhut Log\" \"The log cannot be kept here. /contest: Read-only file system\" OK Critical"});
}

TEST_F(StartTest, MissingFolderIsTold) {
    Program lost{Lend(), "/nowhere"};
    EXPECT_EQ(EndStatusOf([&] { lost.Start(); }), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("/nowhere: No such file or directory"), std::string::npos) << dialogs.boxes[0];
}

struct DamagedLog {
    const char* what;
    std::string text;
};

TEST_F(StartTest, DamagedLogIsToldInTheOneBoxAndLeftAsItIs) {
    const std::string good = WriteRecord(Worked("W1XX"));
    const DamagedLog cases[] = {
        {"11,001 records", LogText(ManyContacts(11'001))},
        {"a NUL byte in a field", good + "\"2\",\"88\",\"A\",\"W2\0XX\",\"72\",\"MDC\",\"\",\"\",\"40\",\"\"\r\n"s},
        {"nothing but NUL bytes", std::string(4'096, '\0')},
        {"NUL bytes behind the last record", good + std::string(512, '\0')},
        {"a line of a mebibyte", good + std::string(1 << 20, 'W') + "\r\n" + good},
        {"a quoted field of a mebibyte", good + '"' + std::string(1 << 20, 'W') + "\"\r\n"},
        {"a quote that is not closed", good + "\"2\",\"88\",\"A\",\"W2XX,\"72\",\"MDC\",\"\",\"\",\"40\",\"\"\r\n"},
        {"a quote that is not closed at the end", good.substr(0, good.size() - 3)},
        {"text behind a closing quote", good + "\"2\",\"88\",\"A\",\"W2\"XX,\"72\",\"MDC\",\"\",\"\",\"40\",\"\"\r\n"},
        {"an extra quote", good + "\"2\",\"88\",\"A\",\"W2\"XX\",\"72\",\"MDC\",\"\",\"\",\"40\",\"\"\r\n"},
        {"a short last record", good + "\"2\",\"88\",\"A\",\"W2XX\"\r\n"},
        {"nine fields", R"("1","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40")"},
        {"a record torn off in a field", good + "\"2\",\"88\",\"A\",\"W2"},
        {"a last serial that is no number", good + "\"x\"" + good.substr(good.find(','))},
        {"no text at all", "\xFF\xFE\x80 garbage"},
    };
    for (const DamagedLog& one : cases) {
        files.Put(kLogPath, one.text);
        dialogs.answers.clear();
        EXPECT_EQ(StatusOfStart(), 1) << one.what;
        EXPECT_EQ(dialogs.boxes.size(), 2U) << "the question, and one box behind it: " << one.what;
        EXPECT_EQ(dialogs.boxes.back(), kFileErrorLine) << one.what;
        EXPECT_EQ(LogOnDisk(), one.text) << one.what;
        dialogs.boxes.clear();
        program.reset();
    }
}

TEST_F(StartTest, FolderInTheLogsPlaceIsAFileError) {
    files.AddFolder(kLogPath);
    EXPECT_EQ(StatusOfStart(), 1);
    EXPECT_EQ(dialogs.boxes.back(), kFileErrorLine);
    EXPECT_TRUE(files.FolderExists(kLogPath));
}

TEST_F(StartTest, LastLineWithoutAnEndLoadsAndTheNextContactHasItsOwn) {
    std::string text = LogText(ManyContacts(2));
    text.resize(text.size() - 2);
    files.Put(kLogPath, text);
    Start();
    ASSERT_EQ(program->log.gContactCount(), 2);
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(LogOnDisk(), text + "\r\n" + WriteRecord(program->log.Row(3)));
    EXPECT_EQ(program->log.Row(3).Ns, "3");
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->log.gContactCount(), 3);
}

TEST_F(StartTest, CloseBoxAndExitEndWithStatus0) {
    Start();
    EXPECT_EQ(EndStatusOf([&] { ChooseMenu(Main().mnuExit); }), 0);
    EXPECT_EQ(Operations(), 0) << "the time is stopped: no file is touched";
    Start();
    program->RequestClose();
    EXPECT_EQ(EndStatusOf([&] { program->Run(); }), 0);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(StartTest, RunServesTheOperatorUntilTheEnd) {
    Start();
    Post("88aW1XX72mdc");
    PostNamed("Enter");
    pump.OnWait([&] { program->RequestClose(); });
    EXPECT_EQ(EndStatusOf([&] { program->Run(); }), 0);
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(StartTest, CloseRequestWaitsForWhatWasTypedBefore) {
    Start();
    Post("88aW1XX72mdc");
    PostNamed("Enter");
    program->RequestClose();
    EXPECT_EQ(EndStatusOf([&] { TheDesk().RunPending(); }), 0);
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(StartTest, FailureOfAHandlerSaysThatTheLogIsSafe) {
    Start();
    Main().cmdClear.Click = [] { throw std::runtime_error{"something broke"}; };
    EXPECT_EQ(EndStatusOf([&] { Click(Main().cmdClear); }), 1);
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{"message \"Tallyhut Log\" \"The program must end.\n\nsomething broke\n\n"
                                       "/contest/Log.txt holds 0 contacts.\" OK Critical"});
}

TEST_F(StartTest, CaptionIsTitleAndAddress) {
    Start();
    const std::string& caption = Main().Caption();
    const std::size_t address = caption.find("www.");
    ASSERT_NE(address, std::string::npos);
    EXPECT_GE(address, 50U);
    EXPECT_TRUE(caption.substr(0, address).ends_with("  "));
}

}  // namespace
}  // namespace tallyhut
