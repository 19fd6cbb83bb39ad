#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kTimeRecords = "/contest/nsonoff.txt";
constexpr const char* kBackupPath = "/home/operator/Documents/Q7ZZQ Software/Tallyhut/BACKUP/202611072114.log";
constexpr const char* kTimeOnRecord = "1,\"11/7/2026\",\"21:04:33\",\"00:00:00\"\r\n";

/// What a door leaves behind.
struct Left {
    std::string log;
    std::string preferences;
    std::string timeRecords;
    std::string backup;

    bool operator==(const Left&) const = default;
};

struct ExitTest : ProgramFixture {
    std::string Content(const char* path) const { return files.contents.contains(path) ? files.contents.at(path) : ""; }
    Left LeftBehind() const {
        return {.log = LogOnDisk(),
                .preferences = Content(kPreferencesPath),
                .timeRecords = Content(kTimeRecords),
                .backup = Content(kBackupPath)};
    }
    std::string PreferencesWith(float seconds) const {
        Preferences wanted = program->preferences;
        wanted.gOpSeconds = seconds;
        return WritePreferences(wanted);
    }

    /// Ten minutes on the air; the operations of the end count from here.
    void OperateTenMinutes(int contacts = 1) {
        Click(Main().cmdLogOn);
        for (int n = 1; n <= contacts; ++n) {
            Type("88aw" + std::to_string(n) + "xx72mdc\r");
        }
        PassTime(600'000);
        dialogs.boxes.clear();
        operationsBefore = files.Operations();
    }
    int OperationsOfTheEnd() const { return files.Operations() - operationsBefore; }

    std::optional<int> ExitByMenu() {
        return EndStatusOf([this] { ChooseMenu(Main().mnuExit); });
    }
    std::optional<int> CloseBox() {
        return EndStatusOf([this] {
            TheDesk().PostAction([this] { Main().RequestClose(); });
            TheDesk().RunPending();
        });
    }
    std::optional<int> CloseFromOutside() {
        return EndStatusOf([this] {
            program->RequestClose();
            program->Run();
        });
    }
    static std::vector<std::string> TimeBox(const std::string& path) {
        return {"message \"Tallyhut Log\" \"Not all of the operating time could be saved. " + path +
                ": No space left on device\n\n/contest/Log.txt holds 1 contact.\" OK Critical"};
    }

    int operationsBefore = 0;
};

// File, Exit.

TEST_F(ExitTest, TheLettersOfFileAndExitEndTheProgram) {
    Start();
    EXPECT_EQ(EndStatusOf([this] {
                  Press("Alt+F");
                  Press("x");
              }),
              0);
}

TEST_F(ExitTest, ExitWithTheTimeRunningKeepsTheSecondsAndRecordsTheTotal) {
    Start();
    OperateTenMinutes();
    EXPECT_EQ(ExitByMenu(), 0);
    EXPECT_EQ(Content(kPreferencesPath), PreferencesWith(600));
    EXPECT_EQ(Content(kTimeRecords), std::string{kTimeOnRecord} + "0,\"11/7/2026\",\"21:14:33\",\"00:10:00\"\r\n");
    EXPECT_EQ(program->time.gTimeOn, 0);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

TEST_F(ExitTest, ExitMakesNoBackupAndUnloadsNoForm) {
    Start();
    OperateTenMinutes();
    program->editForm.Load();
    int unloads = 0;
    program->editForm.Form_Unload = [&unloads] { ++unloads; };
    EXPECT_EQ(ExitByMenu(), 0);
    EXPECT_FALSE(files.FileExists(kBackupPath));
    EXPECT_EQ(OperationsOfTheEnd(), 2) << "the settings and the record";
    EXPECT_EQ(unloads, 0);
    EXPECT_TRUE(Main().IsLoaded());
}

TEST_F(ExitTest, ExitAddsToTheSecondsOfEarlierRuns) {
    stored.gOpSeconds = 3'600;
    Start();
    OperateTenMinutes();
    EXPECT_EQ(ExitByMenu(), 0);
    EXPECT_EQ(Content(kPreferencesPath), PreferencesWith(4'200));
    EXPECT_TRUE(Content(kTimeRecords).ends_with("\"01:10:00\"\r\n")) << Content(kTimeRecords);
}

TEST_F(ExitTest, ExitBeforeTheFirstTickLosesNoSecondsOfEarlierRuns) {
    stored.gOpSeconds = 3'600;
    Start();
    Click(Main().cmdLogOn);
    EXPECT_EQ(ExitByMenu(), 0);
    EXPECT_EQ(Content(kPreferencesPath), PreferencesWith(3'600));
}

TEST_F(ExitTest, ExitWithTheTimeStoppedTouchesNoFile) {
    Start();
    OperateTenMinutes();
    Click(Main().cmdLogOn);
    const auto before = files.contents;
    operationsBefore = files.Operations();
    EXPECT_EQ(ExitByMenu(), 0);
    EXPECT_EQ(OperationsOfTheEnd(), 0);
    EXPECT_EQ(files.contents, before);
}

// The close box.

TEST_F(ExitTest, CloseBoxWithTheTimeRunningRecordsNoTotal) {
    Start();
    OperateTenMinutes();
    EXPECT_EQ(CloseBox(), 0);
    EXPECT_EQ(Content(kTimeRecords), std::string{kTimeOnRecord} + "0,\"11/7/2026\",\"21:14:33\",\r\n");
    EXPECT_EQ(Content(kPreferencesPath), PreferencesWith(600));
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

TEST_F(ExitTest, CloseBoxUnloadsTheFormsAndBacksUpAChangedCount) {
    PutLog(ManyContacts(10));
    Start();
    OperateTenMinutes(2);
    program->editForm.Load();
    int unloads = 0;
    program->editForm.Form_Unload = [&unloads] { ++unloads; };
    EXPECT_EQ(CloseBox(), 0);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(Content(kBackupPath), LogOnDisk());
    EXPECT_EQ(LogLines().size(), 12U);
    EXPECT_EQ(OperationsOfTheEnd(), 3) << "the backup, the settings, the record";
}

TEST_F(ExitTest, CloseBoxWithTheCountUnchangedMakesNoBackup) {
    PutLog(ManyContacts(10));
    Start();
    OperateTenMinutes(0);
    EXPECT_EQ(CloseBox(), 0);
    EXPECT_FALSE(files.FileExists(kBackupPath));
    EXPECT_EQ(OperationsOfTheEnd(), 2);
}

TEST_F(ExitTest, CloseBoxWithTheTimeStoppedWritesTheBackupAlone) {
    Start();
    OperateTenMinutes();
    Click(Main().cmdLogOn);
    const Left before = LeftBehind();
    operationsBefore = files.Operations();
    EXPECT_EQ(CloseBox(), 0);
    EXPECT_EQ(OperationsOfTheEnd(), 1);
    EXPECT_EQ(LeftBehind(), (Left{.log = before.log,
                                  .preferences = before.preferences,
                                  .timeRecords = before.timeRecords,
                                  .backup = before.log}));
}

TEST_F(ExitTest, CloseRequestFromOutsideLeavesTheFilesOfTheCloseBox) {
    std::vector<Left> left;
    for (const bool fromOutside : {false, true}) {
        files = sim::Files{kFolder};
        clock.SetNow({2026, 11, 7, 21, 4, 33});
        Start();
        OperateTenMinutes();
        EXPECT_EQ(fromOutside ? CloseFromOutside() : CloseBox(), 0);
        left.push_back(LeftBehind());
        program.reset();
    }
    EXPECT_NE(left[0].backup, "");
    EXPECT_EQ(left[0], left[1]);
}

TEST_F(ExitTest, NextRunGoesOnWhereEitherDoorEnded) {
    Start();
    OperateTenMinutes();
    EXPECT_EQ(CloseBox(), 0);
    StartContinuing();
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->time.gTimeOn, 0);
    Click(Main().cmdLogOn);
    PassTime(60'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:11:00");
    EXPECT_EQ(ExitByMenu(), 0);
    StartContinuing();
    EXPECT_EQ(program->preferences.gOpSeconds, 660);
}

// Failures.

TEST_F(ExitTest, SettingsThatCannotBeWrittenAreToldAtExitAndTheOldOnesStay) {
    Start();
    OperateTenMinutes();
    const Left before = LeftBehind();
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(ExitByMenu(), 1);
    EXPECT_EQ(dialogs.boxes, TimeBox(kPreferencesPath));
    EXPECT_EQ(Content(kPreferencesPath), before.preferences);
    EXPECT_TRUE(Content(kTimeRecords).ends_with("0,\"11/7/2026\",\"21:14:33\",\"00:10:00\"\r\n"))
        << Content(kTimeRecords);
}

TEST_F(ExitTest, RecordThatCannotBeWrittenIsToldAtExitAndTheSecondsAreKept) {
    Start();
    OperateTenMinutes();
    const Left before = LeftBehind();
    files.FailAt(2, "No space left on device");
    EXPECT_EQ(ExitByMenu(), 1);
    EXPECT_EQ(dialogs.boxes, TimeBox(kTimeRecords));
    EXPECT_EQ(
        LeftBehind(),
        (Left{
            .log = before.log, .preferences = PreferencesWith(600), .timeRecords = before.timeRecords, .backup = ""}));
}

TEST_F(ExitTest, BackupThatFailsIsSilentAndHoldsNothingUp) {
    Start();
    OperateTenMinutes();
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(CloseBox(), 0);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
    EXPECT_FALSE(files.FileExists(kBackupPath));
    EXPECT_EQ(Content(kPreferencesPath), PreferencesWith(600));
    EXPECT_TRUE(Content(kTimeRecords).ends_with("\"21:14:33\",\r\n")) << Content(kTimeRecords);
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(ExitTest, FailuresBehindTheBackupAreToldWhenTheWindowCloses) {
    struct Case {
        int operation;
        const char* path;
    };
    for (const Case& one : {Case{2, kPreferencesPath}, Case{3, kTimeRecords}}) {
        files = sim::Files{kFolder};
        clock.SetNow({2026, 11, 7, 21, 4, 33});
        Start();
        OperateTenMinutes();
        const Left before = LeftBehind();
        files.FailAt(one.operation, "No space left on device");
        EXPECT_EQ(CloseBox(), 1) << one.path;
        EXPECT_EQ(dialogs.boxes, TimeBox(one.path));
        EXPECT_EQ(LogOnDisk(), before.log);
        EXPECT_EQ(Content(kBackupPath), before.log) << one.path;
        const bool recorded = one.path == std::string_view{kPreferencesPath};
        EXPECT_EQ(Content(kTimeRecords), before.timeRecords + (recorded ? "0,\"11/7/2026\",\"21:14:33\",\r\n" : ""))
            << one.path;
        program.reset();
    }
}

TEST_F(ExitTest, FailureAtTheEndTellsTheEntryThatStoodInTheFields) {
    Start();
    OperateTenMinutes();
    Type("89bk1ab73ct");
    dialogs.boxes.clear();
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(ExitByMenu(), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(dialogs.boxes[0].ends_with(" This entry was not logged: 89 B K1AB 73 CT\" OK Critical"))
        << dialogs.boxes[0];
}

}  // namespace
}  // namespace tallyhut
