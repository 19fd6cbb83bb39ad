#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

const std::string kNewLogLine =
    "input \"WARNING - Your existing log file will be ERASED!\" \"Are you sure that you want to start a new log file?  "
    "This function will ERASE the existing log file!\r\n\r\nTo verify that you want to start a new log file, please "
    "type: YES\" \"\"";
const std::string kArchiveLine =
    "message \"Archive Information\" \"This function is used to create a permanent copy of your currently open log "
    "file.  To open your log file at a later date, click File > Restore from Archive or Backup.\" OK Information";
const std::string kRestoreLine =
    "message \"Opening Archived Data Information\" \"This action will open an archived log or backup file and creates "
    "a working file called log.txt.  If you make any changes to your archived data that you would like to permanently "
    "save, before you click File > New to start a new contest, be sure to click File > Archive to save your "
    "changes.\" OK Information";
const std::string kReplaceLine =
    "message \"Are your sure?\" \"Are you sure that you want to open an archived log?  This action will clear and "
    "replace existing QSO data.\" YesNo Question";
const std::string kOpenLine = "open \"\" \"Log Files (*.log) | *.log\" \"/home/operator/Tallyhut/BACKUP\" \"\"";
const std::string kKeptFolder = std::string{kDataFolder} + "/KEPT";
const std::string kKeptPath = kKeptFolder + "/20261107210433.log";
const std::string kFolderOfCopies = "/home/operator/Tallyhut/BACKUP";
const std::string kBackupPath = kFolderOfCopies + "/202611072104.log";

std::string SaveLine(const std::string& name) {
    return "save \"\" \"Log Files (*.log) | *.log\" \"" + kFolderOfCopies + "\" \"" + kFolderOfCopies + '/' + name +
           "\" prompt";
}

std::string ErrorLine(const std::string& title, const std::string& text) {
    return "message \"" + title + "\" \"" + text + "\" OK Exclamation";
}

struct LogCopiesTest : EditingFixture {
    /// A contact reaches the log as at a commit.
    void AddContact(const std::string& call) {
        program->time.gTimeOn = 1;
        FillAll("88", "A", call, "72", "MDC");
        Focus(Main().txtSec);
        Press("Enter");
    }
    Lines Copies() {
        Lines names;
        for (const auto& [path, content] : files.contents) {
            if (path.starts_with(kFolderOfCopies + '/')) {
                names.push_back(path.substr(kFolderOfCopies.size() + 1));
            }
        }
        return names;
    }
    void NewLog(const std::string& typed) {
        dialogs.inputs.push_back(typed);
        ChooseMenu(Main().mnuNew);
    }
    void Restore(const std::string& path) {
        dialogs.answers = {Answer::OK, Answer::Yes};
        dialogs.files.push_back(path);
        ChooseMenu(Main().mnuRestore);
    }
    Preferences OnDisk() {
        Preferences read;
        ReadPreferences(files.contents.at(kPreferencesPath), read);
        return read;
    }
};

TEST_F(LogCopiesTest, UnchangedCountMakesNoBackup) {
    StartOnDesk(ManyContacts(10));
    program->copies.Backup();
    EXPECT_EQ(Copies(), Lines{});
    EXPECT_FALSE(files.FolderExists(kFolderOfCopies));
}

TEST_F(LogCopiesTest, AddedContactMakesABackupNamedAfterTheLocalMinute) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    program->copies.Backup();
    EXPECT_EQ(Copies(), Lines{"202611072104.log"});
    EXPECT_EQ(files.contents.at(kBackupPath), LogOnDisk());
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(LogCopiesTest, BackupOfTheSameMinuteOverwritesTheEarlierOne) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    program->copies.Backup();
    AddContact("N3ZZ");
    program->copies.Backup();
    EXPECT_EQ(Copies(), Lines{"202611072104.log"});
    EXPECT_EQ(files.contents.at(kBackupPath), LogOnDisk());
    PassTime(60'000);
    program->copies.Backup();
    EXPECT_EQ(Copies(), (Lines{"202611072104.log", "202611072105.log"}));
}

TEST_F(LogCopiesTest, EmptyLogIsNotBackedUp) {
    StartOnDesk(ManyContacts(1));
    ClickRow(0);
    dialogs.answers.push_back(Answer::Yes);
    program->editing.cmdDelete_Click();
    EXPECT_EQ(program->log.gContactCount(), 0);
    program->copies.Backup();
    EXPECT_EQ(Copies(), Lines{});
}

TEST_F(LogCopiesTest, EditAloneMakesNoBackup) {
    StartOnDesk(ManyContacts(2));
    ClickRow(0);
    Meanwhile([&] {
        EditForm().txtEditCall.SetText("K2YY");
        EditForm().cmdDone.Click();
    });
    Click(Main().cmdEdit);
    program->copies.Backup();
    EXPECT_EQ(Copies(), Lines{});
}

TEST_F(LogCopiesTest, FailedBackupIsSilentAndLeavesTheLog) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    const std::string before = LogOnDisk();
    for (const int operation : {1, 2}) {  // the folder, the copy
        files.FailAt(operation, "No space left on device");
        program->copies.Backup();
        EXPECT_EQ(Copies(), Lines{}) << operation;
        EXPECT_EQ(LogOnDisk(), before);
    }
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(LogCopiesTest, NewLogEmptiesLogTimeRecordsAndSeconds) {
    stored.gOpSeconds = 3'600;
    StartOnDesk(ManyContacts(10));
    program->time.gOpSecondsNow = 3'700;
    files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
    NewLog("YES");
    EXPECT_EQ(TakeBoxes(), Lines{kNewLogLine});
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(files.contents.at(kTimeRecordsPath), "");
    EXPECT_EQ(OnDisk().gOpSeconds, 0);
    EXPECT_EQ(program->time.gOpSecondsNow, 0);
    EXPECT_EQ(program->log.gContactCount(), 0);
    EXPECT_EQ(Main().lblTotCon.Caption(), "  0");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "1");
    EXPECT_EQ(Copies(), Lines{}) << "the run has not changed the count";
}

TEST_F(LogCopiesTest, NewLogKeepsTheOldOneAsABackup) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    const std::string before = LogOnDisk();
    NewLog("YES");
    EXPECT_EQ(Copies(), Lines{"202611072104.log"});
    EXPECT_EQ(files.contents.at(kBackupPath), before);
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(LogCopiesTest, NewLogOverAnEmptyLogMakesNoBackup) {
    StartOnDesk();
    NewLog("YES");
    EXPECT_EQ(Copies(), Lines{});
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(LogCopiesTest, LowerCaseYesStartsANewLog) {
    StartOnDesk(ManyContacts(10));
    NewLog("yes");
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(LogCopiesTest, AnythingElseReloadsTheLogAndErasesNothing) {
    stored.gOpSeconds = 3'600;
    StartOnDesk(ManyContacts(10));
    const std::string changedByHand = LogText(ManyContacts(12));
    files.Put(kLogPath, changedByHand);
    const int operations = files.Operations();
    for (const char* typed : {"YES ", " YES", "Y", "NO", ""}) {
        NewLog(typed);
        EXPECT_EQ(LogOnDisk(), changedByHand) << typed;
        EXPECT_EQ(program->log.gContactCount(), 12) << typed;
    }
    EXPECT_EQ(files.Operations(), operations + 1) << "what the hand has changed is kept, once";
}

TEST_F(LogCopiesTest, NewLogThatIsRefusedWithoutALogIsTheFileErrorBox) {
    StartOnDesk();
    files.contents.erase(kLogPath);
    EXPECT_EQ(EndStatusOf([&] { NewLog("no"); }), 1);
    EXPECT_EQ(TakeBoxes(), (Lines{kNewLogLine, kFileErrorLine}));
}

TEST_F(LogCopiesTest, NewLogThatCannotBeEmptiedIsFatalAndTheLogStays) {
    stored.gOpSeconds = 3'600;
    StartOnDesk(ManyContacts(10));
    const std::string before = LogOnDisk();
    files.FailAt(3, "Read-only file system");  // behind the folder of what is kept, and the copy
    EXPECT_EQ(EndStatusOf([&] { NewLog("YES"); }), 1);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(TakeBoxes(), (Lines{kNewLogLine,
                                  "message \"Tallyhut Log\" \"The program must end.\n\n/contest/Log.txt: Read-only "
                                  "file system\n\nThe new log was not started; the log is as it was "
                                  "before.\n\n/contest/Log.txt holds 10 contacts.\" OK Critical"}));
    EXPECT_EQ(program->preferences.gOpSeconds, 3'600);
}

TEST_F(LogCopiesTest, NewLogWhoseSettingsCannotBeWrittenIsToldAndTheContestGoesOn) {
    struct Case {
        int operation;
        const char* path;
    };
    for (const Case& c : {Case{4, kTimeRecordsPath}, Case{5, kPreferencesPath}}) {
        files = sim::Files{kFolder};
        stored.gOpSeconds = 3'600;
        StartOnDesk(ManyContacts(10));
        files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
        const std::string before = files.contents.at(c.path);
        files.FailAt(c.operation, "No space left on device");
        EXPECT_EQ(EndStatusOf([&] { NewLog("YES"); }), std::nullopt) << c.path;
        EXPECT_EQ(files.contents.at(c.path), before);
        EXPECT_EQ(TakeBoxes().back(),
                  "message \"Tallyhut Log\" \"" + std::string{c.path} + ": No space left on device\" OK Exclamation");
        EXPECT_EQ(LogOnDisk(), "");
        EXPECT_EQ(program->log.gContactCount(), 0);
        EXPECT_EQ(Main().ListView1.RowCount(), 0U);
        program.reset();
    }
}

TEST_F(LogCopiesTest, NewLogGoesOnWhereItsBackupFails) {
    StartOnDesk(ManyContacts(10));
    AddContact("K2YY");
    files.FailAt(1, "Permission denied");
    NewLog("YES");
    EXPECT_EQ(TakeBoxes(), Lines{kNewLogLine});
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(LogCopiesTest, ArchiveCopiesTheLogToTheChosenName) {
    stored.gOwnCall = "W1XX/3";
    StartOnDesk(ManyContacts(3));
    dialogs.files.push_back("/home/operator/mine.log");
    ChooseMenu(Main().mnuArchive);
    EXPECT_EQ(TakeBoxes(), (Lines{kArchiveLine, SaveLine("W1XX2026-11-07.log")}));
    EXPECT_EQ(files.contents.at("/home/operator/mine.log"), LogOnDisk());
}

TEST_F(LogCopiesTest, ArchiveWithoutACallIsProposedAsYourCall) {
    StartOnDesk(ManyContacts(3));
    dialogs.files.push_back("/home/operator/mine.log");
    ChooseMenu(Main().mnuArchive);
    EXPECT_EQ(TakeBoxes().at(1), SaveLine("YourCall2026-11-07.log"));
}

TEST_F(LogCopiesTest, CancelledArchiveIsAnErrorAndChangesNothing) {
    StartOnDesk(ManyContacts(3));
    const auto before = files.contents;
    ChooseMenu(Main().mnuArchive);
    EXPECT_EQ(TakeBoxes(), (Lines{kArchiveLine, SaveLine("YourCall2026-11-07.log"),
                                  ErrorLine("Error Archiving Log", "Cancel was selected.")}));
    EXPECT_EQ(files.contents, before);
}

TEST_F(LogCopiesTest, ArchiveOntoTheLogItselfIsRefused) {
    StartOnDesk(ManyContacts(3));
    const auto before = files.contents;
    dialogs.files.push_back(kLogPath);
    ChooseMenu(Main().mnuArchive);
    EXPECT_EQ(
        TakeBoxes().back(),
        ErrorLine("Error Archiving Log", "/contest/Log.txt: This is the contest's own Log.txt. Choose another name."));
    EXPECT_EQ(files.contents, before);
}

TEST_F(LogCopiesTest, FailedArchiveIsToldAndTheOldArchiveStays) {
    StartOnDesk(ManyContacts(3));
    files.Put("/home/operator/mine.log", "old");
    files.FailAt(1, "No space left on device");
    dialogs.files.push_back("/home/operator/mine.log");
    ChooseMenu(Main().mnuArchive);
    EXPECT_EQ(TakeBoxes().back(), ErrorLine("Error Archiving Log", "/home/operator/mine.log: No space left on device"));
    EXPECT_EQ(files.contents.at("/home/operator/mine.log"), "old");
}

TEST_F(LogCopiesTest, RestoreReplacesTheLogAndKeepsThePresentOne) {
    stored.gOpSeconds = 3'600;
    StartOnDesk(ManyContacts(10));
    files.Put(kTimeRecordsPath, "1,2,3,4\r\n");
    const std::string present = LogOnDisk();
    const std::string archived = LogText(ManyContacts(4));
    files.Put("/home/operator/old.log", archived);
    Restore("/home/operator/old.log");
    EXPECT_EQ(TakeBoxes(), (Lines{kRestoreLine, kReplaceLine, kOpenLine}));
    EXPECT_EQ(LogOnDisk(), archived);
    EXPECT_EQ(program->log.gContactCount(), 4);
    EXPECT_EQ(Main().lblNumCurCon.Caption(), " 5");
    EXPECT_EQ(files.contents.at(kKeptPath), present);
    EXPECT_EQ(Copies(), Lines{});
    EXPECT_EQ(files.contents.at(kTimeRecordsPath), "1,2,3,4\r\n");
    EXPECT_EQ(program->preferences.gOpSeconds, 3'600);
}

TEST_F(LogCopiesTest, RestoreOverAnEmptyLogDoesNotAskAndKeepsNothing) {
    StartOnDesk();
    files.Put("/home/operator/old.log", LogText(ManyContacts(4)));
    dialogs.files.push_back("/home/operator/old.log");
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(TakeBoxes(), (Lines{kRestoreLine, kOpenLine}));
    EXPECT_EQ(program->log.gContactCount(), 4);
    EXPECT_EQ(Copies(), Lines{});
}

TEST_F(LogCopiesTest, RestoreWithoutALogMakesOne) {
    StartOnDesk();
    files.contents.erase(kLogPath);
    files.Put("/home/operator/old.log", LogText(ManyContacts(4)));
    dialogs.files.push_back("/home/operator/old.log");
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(LogLines().size(), 4U);
}

TEST_F(LogCopiesTest, RestoreAnsweredNoChangesNothing) {
    StartOnDesk(ManyContacts(10));
    const auto before = files.contents;
    dialogs.answers = {Answer::OK, Answer::No};
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(TakeBoxes(), (Lines{kRestoreLine, kReplaceLine}));
    EXPECT_EQ(files.contents, before);
}

TEST_F(LogCopiesTest, CancelledRestoreIsAnErrorAndChangesNothing) {
    StartOnDesk(ManyContacts(10));
    const auto before = files.contents;
    dialogs.answers = {Answer::OK, Answer::Yes};
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(TakeBoxes(),
              (Lines{kRestoreLine, kReplaceLine, kOpenLine, ErrorLine("Error Restoring Log", "Cancel was selected.")}));
    EXPECT_EQ(files.contents, before);
}

TEST_F(LogCopiesTest, FailedRestoreIsToldAndTheLogStays) {
    struct Case {
        int operation;
        std::string place;
    };
    const std::string notKept = "The present log could not be copied first, so nothing was erased.\r\n\r\n";
    for (const Case& c : {Case{1, notKept + kKeptFolder}, Case{2, notKept + kKeptPath}, Case{3, kLogPath}}) {
        files = sim::Files{kFolder};
        StartOnDesk(ManyContacts(10));
        const std::string present = LogOnDisk();
        files.Put("/home/operator/old.log", LogText(ManyContacts(4)));
        files.FailAt(c.operation, "No space left on device");
        Restore("/home/operator/old.log");
        EXPECT_EQ(TakeBoxes(), (Lines{kRestoreLine, kReplaceLine, kOpenLine,
                                      ErrorLine("Error Restoring Log", c.place + ": No space left on device")}));
        EXPECT_EQ(LogOnDisk(), present) << c.place;
        EXPECT_EQ(program->log.gContactCount(), 10) << c.place;
        program.reset();
    }
}

TEST_F(LogCopiesTest, RestoreOfAMissingFileIsToldAndTheLogStays) {
    StartOnDesk(ManyContacts(10));
    const std::string present = LogOnDisk();
    Restore("/home/operator/none.log");
    EXPECT_EQ(TakeBoxes().back(),
              ErrorLine("Error Restoring Log", "/home/operator/none.log: No such file or directory"));
    EXPECT_EQ(LogOnDisk(), present);
}

TEST_F(LogCopiesTest, RestoreOfAFileThatIsNoLogIsTheFileErrorBoxAndThePresentLogStandsAgain) {
    StartOnDesk(ManyContacts(10));
    const std::string present = LogOnDisk();
    files.Put("/home/operator/letter.log", "Dear \"Tom\", see you at Dayton\r\n");
    EXPECT_EQ(EndStatusOf([&] { Restore("/home/operator/letter.log"); }), 1);
    EXPECT_EQ(TakeBoxes(), (Lines{kRestoreLine, kReplaceLine, kOpenLine, kFileErrorLine}));
    EXPECT_EQ(LogOnDisk(), present);
    EXPECT_EQ(files.contents.at(kKeptPath), present);
}

TEST_F(LogCopiesTest, RestoresOfOneMinuteLoseNoLog) {
    StartOnDesk(ManyContacts(10));
    const std::string present = LogOnDisk();
    const std::string wrong = LogText(ManyContacts(4));
    files.Put("/home/operator/wrong.log", wrong);
    Restore("/home/operator/wrong.log");
    Restore(kKeptPath);  // on second thoughts
    EXPECT_EQ(LogOnDisk(), present);
    EXPECT_EQ(files.contents.at(kKeptPath), present);
    EXPECT_EQ(files.contents.at(kKeptFolder + "/20261107210433-2.log"), wrong);
}

TEST_F(LogCopiesTest, RestoreOfTheLogOntoItselfIsRefused) {
    StartOnDesk(ManyContacts(10));
    const std::string present = LogOnDisk();
    Restore(kLogPath);
    EXPECT_EQ(TakeBoxes().back(),
              ErrorLine("Error Restoring Log", "/contest/Log.txt: Source and target are the same file"));
    EXPECT_EQ(LogOnDisk(), present);
}

TEST_F(LogCopiesTest, RestoreIntoAReadOnlyFolderIsToldAndTheLogStays) {
    StartOnDesk(ManyContacts(10));
    const std::string present = LogOnDisk();
    files.Put("/home/operator/old.log", LogText(ManyContacts(4)));
    files.readOnlyFolders.insert(kFolder);
    Restore("/home/operator/old.log");
    EXPECT_EQ(TakeBoxes().back(), ErrorLine("Error Restoring Log", "/contest/Log.txt: Read-only file system"));
    EXPECT_EQ(LogOnDisk(), present);
}

}  // namespace
}  // namespace tallyhut
