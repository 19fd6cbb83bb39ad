#include "log/file_menu.h"

#include "tests/log/editing_fixture.h"
#include "values/text.h"

namespace tallyhut {
namespace {

const std::string kBackups = std::string{kDataFolder} + "/BACKUP/";
const std::string kKept = std::string{kDataFolder} + "/KEPT/";
const std::string kKeptPath = kKept + "20261107210433.log";
constexpr const char* kArchive = "/home/operator/old.log";
constexpr const char* kNotErased = "The present log could not be copied first, so nothing was erased.\r\n\r\n";

std::string Box(const std::string& title, const std::string& text) {
    return "message \"" + title + "\" \"" + text + "\" OK Exclamation";
}

struct FileMenuTest : EditingFixture {
    std::string At(const std::string& path) const {
        return files.contents.contains(path) ? files.contents.at(path) : "";
    }
    Lines FilesBelow(const std::string& folder) const {
        Lines names;
        for (const auto& [path, content] : files.contents) {
            if (path.starts_with(folder)) {
                names.push_back(path.substr(folder.size()));
            }
        }
        return names;
    }
    void NewLog() {
        dialogs.inputs.push_back("YES");
        ChooseMenu(Main().mnuNew);
    }
    void Restore(const std::string& path) {
        dialogs.answers = {Answer::OK};
        if (program->log.gContactCount() > 0) {
            dialogs.answers.push_back(Answer::Yes);
        }
        dialogs.files.push_back(path);
        ChooseMenu(Main().mnuRestore);
    }
    void Archive(const std::string& path) {
        dialogs.files.push_back(path);
        ChooseMenu(Main().mnuArchive);
    }
    void EditFirstRow(const std::string& call) {
        ClickRow(0);
        Meanwhile([this, call] {
            EditForm().txtEditCall.SetText(call);
            EditForm().cmdDone.Click();
        });
        Click(Main().cmdEdit);
    }
    void AddContact(const std::string& call) {
        program->time.gTimeOn = 1;
        FillAll("88", "A", call, "72", "MDC");
        Focus(Main().txtSec);
        Press("Enter");
    }
    void Delete(int row) {
        ClickRow(row);
        dialogs.answers.push_back(Answer::Yes);
        Click(Main().cmdDelete);
        TakeBoxes();
    }
    void ExpectMemoryIsTheDisks() {
        ContactLog& log = program->log;
        EXPECT_EQ(tallyhut::LogText(log), LogOnDisk());
        EXPECT_EQ(Trim(Main().lblTotCon.Caption()), std::to_string(log.gContactCount()));
        EXPECT_EQ(Main().ListView1.RowCount(), static_cast<std::size_t>(std::min(log.gContactCount(), 20)));
        EXPECT_EQ(program->logFile.mark, files.Mark(kLogPath));
    }
    void BeginAgain() {
        program.reset();
        files = sim::Files{kFolder};
        dialogs.boxes.clear();
        dialogs.answers.clear();
    }
};

// What is kept.

TEST_F(FileMenuTest, NewLogBehindEditsAloneKeepsTheLog) {
    StartOnDesk(ManyContacts(10));
    EditFirstRow("K2YY");
    const std::string edited = LogOnDisk();
    NewLog();
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(FilesBelow(kBackups), Lines{}) << "the count has not changed";
    EXPECT_EQ(At(kKeptPath), edited);
}

TEST_F(FileMenuTest, LogIsEmptiedOnlyBehindItsCopy) {
    StartOnDesk(ManyContacts(10));
    const std::string log = LogOnDisk();
    const int before = files.Operations();
    dialogs.onShow = [&] { EXPECT_EQ(LogOnDisk(), log); };
    NewLog();
    EXPECT_EQ(files.Operations() - before, 5) << "the folder, the copy, the log, the times, the settings";
}

TEST_F(FileMenuTest, NewLogAtTheStartKeepsTheLogThatWasNotOpened) {
    const std::string log = LogText(ManyContacts(10));
    files.Put(kLogPath, log);
    files.Put(kPreferencesPath, WritePreferences(stored));
    files.Put(kWavesPath, kNoWaves);
    MakeProgram();
    pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
    dialogs.answers.push_back(Answer::No);
    dialogs.inputs.push_back("YES");
    program->Start();
    TheDesk().RunPending();
    EXPECT_EQ(TakeBoxes().size(), 2U) << "the question and the warning";
    EXPECT_EQ(LogOnDisk(), "");
    ASSERT_EQ(FilesBelow(program->copies.KeptFolder() + '/'), Lines{"20261107210433.log"});
    EXPECT_EQ(At(program->copies.KeptFolder() + "/20261107210433.log"), log);
    ExpectMemoryIsTheDisks();
}

TEST_F(FileMenuTest, NothingIsKeptOfALogThatABackupHoldsByteForByte) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    NewLog();
    EXPECT_EQ(FilesBelow(kBackups), Lines{"202611072104.log"});
    EXPECT_EQ(FilesBelow(kKept), Lines{});
}

TEST_F(FileMenuTest, ArchiveOfAnyNameInTheFolderOfBackupsCountsAsACopy) {
    StartOnDesk(ManyContacts(10));
    files.AddFolder(std::string{kDataFolder} + "/BACKUP");
    Archive(kBackups + "mine.txt");
    NewLog();
    EXPECT_EQ(FilesBelow(kKept), Lines{});
}

TEST_F(FileMenuTest, BackupOfTheSameLengthWithOtherBytesIsNoCopy) {
    StartOnDesk(ManyContacts(10));
    std::string other = LogOnDisk();
    other.at(other.find("W1X")) = 'K';
    files.Put(kBackups + "202611072000.log", other);
    NewLog();
    EXPECT_EQ(FilesBelow(kKept), Lines{"20261107210433.log"});
}

TEST_F(FileMenuTest, BackupThatIsNotYetInItsPlaceIsNoCopy) {
    StartOnDesk(ManyContacts(10));
    files.Put(kBackups + ".202611072104.log.tallyhut-a1B2c3", LogOnDisk());
    NewLog();
    EXPECT_EQ(FilesBelow(kKept), Lines{"20261107210433.log"});
}

TEST_F(FileMenuTest, BackupThatCannotBeReadIsNoCopyAndHoldsNothingUp) {
    StartOnDesk(ManyContacts(10));
    files.Put(kBackups + "202611072000.log", LogOnDisk());
    files.unreachable[kBackups + "202611072000.log"] = "Permission denied";
    NewLog();
    EXPECT_EQ(FilesBelow(kKept), Lines{"20261107210433.log"});
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(FileMenuTest, EmptyLogIsNotKept) {
    StartOnDesk();
    NewLog();
    Restore(kArchive);
    EXPECT_FALSE(files.FolderExists(std::string{kDataFolder} + "/KEPT"));
}

TEST_F(FileMenuTest, DamagedLogIsKeptLikeAnyOther) {
    StartOnDesk(ManyContacts(3));
    files.contents[kLogPath] += "\"oops";
    program->copies.KeepLog();
    EXPECT_EQ(At(kKeptPath), LogOnDisk());
}

TEST_F(FileMenuTest, LogsKeptInOneSecondHaveNamesOfTheirOwn) {
    StartOnDesk();
    Lines logs;
    for (int n = 1; n <= 3; ++n) {
        files.Put(kArchive, LogText(ManyContacts(n)));
        logs.push_back(At(kArchive));
        Restore(kArchive);
    }
    NewLog();
    EXPECT_EQ(FilesBelow(kKept), (Lines{"20261107210433-2.log", "20261107210433.log"}));
    EXPECT_EQ(At(kKeptPath), logs[0]);
    EXPECT_EQ(At(kKept + "20261107210433-2.log"), logs[1]);
    EXPECT_EQ(At(kBackups + "202611072104.log"), logs[2]) << "the backup of the new log is copy enough";
}

TEST_F(FileMenuTest, BackupOfTheSameMinuteWithFewerContactsKeepsTheLongerOne) {
    StartOnDesk(ManyContacts(3));
    AddContact("K2YY");
    AddContact("N3ZZ");
    program->copies.Backup();
    const std::string longer = At(kBackups + "202611072104.log");
    Delete(0);
    program->copies.Backup();
    EXPECT_EQ(FilesBelow(kBackups), Lines{"202611072104.log"});
    EXPECT_EQ(At(kBackups + "202611072104.log"), LogOnDisk());
    EXPECT_EQ(At(kKeptPath), longer);
}

TEST_F(FileMenuTest, BackupOfTheSameMinuteWithMoreContactsKeepsNothing) {
    StartOnDesk(ManyContacts(3));
    AddContact("K2YY");
    program->copies.Backup();
    AddContact("N3ZZ");
    program->copies.Backup();
    EXPECT_EQ(FilesBelow(kKept), Lines{});
}

TEST_F(FileMenuTest, LongerBackupThatCannotBeKeptIsNotWrittenOver) {
    StartOnDesk(ManyContacts(3));
    AddContact("K2YY");
    AddContact("N3ZZ");
    program->copies.Backup();
    const std::string longer = At(kBackups + "202611072104.log");
    Delete(0);
    files.FailAt(1, "No space left on device");
    program->copies.Backup();
    EXPECT_EQ(At(kBackups + "202611072104.log"), longer);
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(FileMenuTest, CopyThatFailsIsToldAndNothingIsErased) {
    struct Case {
        int operation;
        std::string path;
    };
    for (const Case& c : {Case{1, std::string{kDataFolder} + "/KEPT"}, Case{2, kKeptPath}}) {
        BeginAgain();
        stored.gOpSeconds = 3'600;
        StartOnDesk(ManyContacts(10));
        files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
        const std::string log = LogOnDisk();
        files.FailAt(c.operation, "No space left on device");
        NewLog();
        EXPECT_EQ(TakeBoxes().back(),
                  Box("The log was not erased.", kNotErased + c.path + ": No space left on device"));
        EXPECT_EQ(LogOnDisk(), log);
        EXPECT_EQ(At(kTimeRecordsPath), "1,2,3,4\r\n");
        EXPECT_EQ(program->preferences.gOpSeconds, 3'600);
        ExpectMemoryIsTheDisks();
        NewLog();
        EXPECT_EQ(LogOnDisk(), "") << "when it can be kept";
    }
}

// What is said, and what is on the disk.

TEST_F(FileMenuTest, NewLogThatFailsAtAnyStepLosesNothingAndShowsTheDisk) {
    for (const bool behind : {false, true}) {
        for (int operation = 1; operation <= 5; ++operation) {
            if (behind && operation == 1) {
                continue;  // a folder is made or not
            }
            BeginAgain();
            stored.gOpSeconds = 3'600;
            StartOnDesk(ManyContacts(10));
            files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
            const std::string log = LogOnDisk();
            if (behind) {
                files.FailBehind(operation, "Input/output error");
            } else {
                files.FailAt(operation, "Input/output error");
            }
            const std::optional<int> end = EndStatusOf([this] { NewLog(); });
            const std::string at = std::to_string(operation) + (behind ? " behind" : "");
            EXPECT_EQ(end, operation == 3 && !behind ? std::optional{1} : std::nullopt) << at;
            EXPECT_NE(TakeBoxes().back().find("Input/output error"), std::string::npos) << at;
            EXPECT_TRUE(LogOnDisk() == log || At(kKeptPath) == log) << at;
            ExpectMemoryIsTheDisks();
            const bool erased = LogOnDisk().empty();
            EXPECT_EQ(erased, operation > 3 || (operation == 3 && behind)) << at;
            EXPECT_EQ(program->preferences.gOpSeconds, erased ? 0 : 3'600) << at;
            EXPECT_EQ(At(kTimeRecordsPath).empty(), erased && !(operation == 4 && !behind)) << at;
            Preferences onDisk;
            ReadPreferences(At(kPreferencesPath), onDisk);
            EXPECT_EQ(onDisk.gOpSeconds, erased && !(operation == 5 && !behind) ? 0 : 3'600) << at;
        }
    }
}

TEST_F(FileMenuTest, RestoreThatFailsAtAnyStepLosesNothingAndShowsTheDisk) {
    for (const bool behind : {false, true}) {
        for (int operation = 1; operation <= 3; ++operation) {
            if (behind && operation == 1) {
                continue;
            }
            BeginAgain();
            StartOnDesk(ManyContacts(10));
            const std::string log = LogOnDisk();
            files.Put(kArchive, LogText(ManyContacts(4)));
            if (behind) {
                files.FailBehind(operation, "Input/output error");
            } else {
                files.FailAt(operation, "Input/output error");
            }
            EXPECT_EQ(EndStatusOf([this] { Restore(kArchive); }), std::nullopt);
            const std::string told = TakeBoxes().back();
            const std::string at = std::to_string(operation) + (behind ? " behind" : "");
            EXPECT_TRUE(told.starts_with("message \"Error Restoring Log\"")) << at << told;
            EXPECT_NE(told.find("Input/output error"), std::string::npos) << at << told;
            EXPECT_EQ(LogOnDisk(), operation == 3 && behind ? At(kArchive) : log) << at;
            ExpectMemoryIsTheDisks();
            AddContact("K2YY");
            EXPECT_EQ(TakeBoxes(), Lines{}) << "the file is known: " << at;
            ExpectMemoryIsTheDisks();
        }
    }
}

TEST_F(FileMenuTest, RestoreOfADamagedFileLeavesTheLogThatWasThereBefore) {
    StartOnDesk(ManyContacts(10));
    const std::string log = LogOnDisk();
    files.Put(kArchive, LogText(ManyContacts(4)) + "\"5\",\"oops");
    EXPECT_EQ(EndStatusOf([this] { Restore(kArchive); }), 1);
    EXPECT_EQ(TakeBoxes().back(), kFileErrorLine);
    EXPECT_EQ(LogOnDisk(), log);
    EXPECT_EQ(At(kKeptPath), log);
}

TEST_F(FileMenuTest, RestoreOfTooLongALogLeavesTheLogThatWasThereBefore) {
    StartOnDesk(ManyContacts(10));
    const std::string log = LogOnDisk();
    std::string text;
    for (int n = 0; n <= ContactLog::kMostContacts; ++n) {
        text += WriteRecord(Worked("W1XX"));
    }
    files.Put(kArchive, text);
    EXPECT_EQ(EndStatusOf([this] { Restore(kArchive); }), 1);
    EXPECT_EQ(LogOnDisk(), log);
}

TEST_F(FileMenuTest, ArchiveOntoTheContestsOwnFilesIsRefused) {
    for (const char* name : {"Log.txt", "nspref.txt", "nsonoff.txt"}) {
        BeginAgain();
        StartOnDesk(ManyContacts(3));
        files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
        const auto before = files.contents;
        for (const std::string& path : {"/contest/" + std::string{name}, "/contest/../contest/" + std::string{name}}) {
            Archive(path);
            EXPECT_EQ(TakeBoxes().back(), Box("Error Archiving Log",
                                              path + ": This is the contest's own " + name + ". Choose another name."));
            EXPECT_EQ(files.contents, before) << path;
        }
    }
}

TEST_F(FileMenuTest, NextStartRemovesWhatAKilledRunLeftAmongTheCopies) {
    const std::string home = "/home/operator/Documents/Q7ZZQ Software/Tallyhut/";
    for (const char* folder : {"BACKUP/", "KEPT/"}) {
        files.Put(home + folder + ".202611072104.log.tallyhut-a1B2c3", "half a lo");
        files.Put(home + folder + "202611072104.log", "a whole one");
    }
    files.Put("/contest/.Log.txt.tallyhut-a1B2c3", "half a lo");
    Start();
    EXPECT_EQ(FilesBelow(home + "BACKUP/"), Lines{"202611072104.log"});
    EXPECT_EQ(FilesBelow(home + "KEPT/"), Lines{"202611072104.log"});
    EXPECT_FALSE(files.contents.contains("/contest/.Log.txt.tallyhut-a1B2c3"));
}

}  // namespace
}  // namespace tallyhut
