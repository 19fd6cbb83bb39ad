#include "log/log_guard.h"

#include "tests/log/editing_fixture.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kDamaged = "\"Q7ABC\r\n";
constexpr const char* kDamagedPath = "/contest/nspref-damaged.txt";
constexpr const char* kRecoveredPath = "/contest/Log-recovered.txt";
const std::string kKeptPath = std::string{kDataFolder} + "/KEPT/20261107210433.log";
constexpr const char* kFoundPath = "/contest/Log-found.txt";

struct LogGuardTest : EditingFixture {
    std::string At(const std::string& path) const {
        return files.contents.contains(path) ? files.contents.at(path) : "";
    }
    /// A start that ends early, in front of the question for the log.
    void StartOnDamagedSettings(const std::vector<Contact>& contacts) {
        PutLog(contacts);
        files.Put(kPreferencesPath, kDamaged);
        StartQuietly();
    }
    void StartQuietly() {
        MakeProgram();
        program->Start();
        TheDesk().RunPending();
        EXPECT_EQ(TakeBoxes(), Lines{}) << "the load ends without a word";
        EXPECT_EQ(program->log.gContactCount(), 0);
    }
    void Commit(const std::string& call) {
        program->time.gTimeOn = 1;
        FillAll("88", "A", call, "72", "MDC");
        Focus(Main().txtSec);
        Press("Enter");
    }
    /// The calls that stand in a log, in order.
    static std::string CallsIn(const std::string& text) {
        FieldReader fields{text};
        std::string calls;
        while (!fields.AtEnd()) {
            calls += (calls.empty() ? "" : " ") + ReadRecord(fields).Call;
        }
        return calls;
    }
    std::string CallsInMemory() {
        std::string calls;
        for (std::int32_t n = 1; n <= program->log.gContactCount(); ++n) {
            calls += (n == 1 ? "" : " ") + program->log.Row(n).Call;
        }
        return calls;
    }
    void ExpectMemoryAndListAreTheDisks() {
        EXPECT_EQ(CallsInMemory(), CallsIn(LogOnDisk()));
        EXPECT_EQ(Trim(Main().lblTotCon.Caption()), std::to_string(program->log.gContactCount()));
        EXPECT_EQ(Main().ListView1.RowCount(), static_cast<std::size_t>(program->log.gContactCount()));
        EXPECT_EQ(program->logFile.mark, files.Mark(kLogPath));
    }
};

// A start that could not read the settings.

TEST_F(LogGuardTest, CommitBehindDamagedSettingsOpensTheLogFirst) {
    StartOnDamagedSettings(ManyContacts(500));
    const std::string before = LogOnDisk();
    Commit("K2YY");
    EXPECT_EQ(program->log.gContactCount(), 501);
    ASSERT_TRUE(LogOnDisk().starts_with(before));
    EXPECT_TRUE(LogLines().back().starts_with("\"501\",\"88\",\"A\",\"K2YY\"")) << LogLines().back();
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  502");
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(LogGuardTest, DuplicateOfALogThatTheStartCouldNotOpenIsFound) {
    StartOnDamagedSettings(ManyContacts(500));
    const std::string before = LogOnDisk();
    Commit("W7X");
    EXPECT_TRUE(Dialog().starts_with("Duplicate W7X")) << Dialog();
    EXPECT_EQ(LogOnDisk(), before);
}

TEST_F(LogGuardTest, EditAndDeleteBehindDamagedSettingsKeepAllOthers) {
    for (const bool deletes : {false, true}) {
        files = sim::Files{kFolder};
        StartOnDamagedSettings(ManyContacts(500));
        program->editing.cmdDelete_Click();  // before anything is listed: opens, and deletes nothing
        EXPECT_EQ(LogLines().size(), 500U);
        EXPECT_EQ(program->log.gContactCount(), 500);
        ClickRow(0);
        if (deletes) {
            dialogs.answers.push_back(Answer::Yes);
            Click(Main().cmdDelete);
        } else {
            Meanwhile([this] {
                EditForm().txtEditCall.SetText("K2YY");
                EditForm().cmdDone.Click();
            });
            Click(Main().cmdEdit);
        }
        EXPECT_EQ(LogLines().size(), deletes ? 499U : 500U);
        TakeBoxes();
        program.reset();
    }
}

TEST_F(LogGuardTest, EveryReportBehindDamagedSettingsHoldsTheWholeLog) {
    struct Case {
        MenuEntry Form1::*entry;
        bool opensForm;
    };
    for (const Case& c :
         {Case{&Form1::mnuCabrillo, true}, Case{&Form1::mnuSummary, true}, Case{&Form1::expADIF, false},
          Case{&Form1::mnuExport, false}, Case{&Form1::mnuCopyListtoClipboard, false}, Case{&Form1::mnuPrintLog, false},
          Case{&Form1::mnuPrintDupe, false}, Case{&Form1::mnuWriteLog, false}, Case{&Form1::mnuWriteDupe, false}}) {
        files = sim::Files{kFolder};
        StartOnDamagedSettings(ManyContacts(500));
        files.Put("/contest/nsonoff.txt", "");
        const std::string before = LogOnDisk();
        if (c.opensForm) {
            Meanwhile([this] { program->form2.Hide(); });
        }
        ChooseMenu(Main().*c.entry);
        EXPECT_EQ(program->log.gContactCount(), 500) << (Main().*c.entry).FullName();
        EXPECT_EQ(LogOnDisk(), before);
        EXPECT_FALSE(pump.HasScripts());
        TakeBoxes();
        program.reset();
    }
}

TEST_F(LogGuardTest, LogIsOpenedOnceAndLaterChangesOfAnotherHandAreTold) {
    StartOnDamagedSettings({});
    Commit("K2YY");
    files.Put(kLogPath, LogText(ManyContacts(3)));
    dialogs.answers.push_back(Answer::Yes);
    Commit("N3ZZ");
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(CallsIn(At(kRecoveredPath)), "K2YY");
    EXPECT_EQ(CallsInMemory(), "W1X W2X W3X");
}

TEST_F(LogGuardTest, FirstContactBehindDamagedSettingsMakesTheLogWhereThereIsNone) {
    files.Put(kPreferencesPath, kDamaged);
    StartQuietly();
    Commit("K2YY");
    EXPECT_EQ(CallsIn(LogOnDisk()), "K2YY");
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(LogGuardTest, NewLogAndRestoreBehindDamagedSettingsKeepTheLogThatStandsThere) {
    for (const bool restores : {false, true}) {
        files = sim::Files{kFolder};
        StartOnDamagedSettings(ManyContacts(500));
        program->directories.DataDirectory = kDataFolder;
        files.AddFolder(kDataFolder);
        files.Put("/home/operator/old.log", LogText(ManyContacts(4)));
        const std::string before = LogOnDisk();
        if (restores) {
            dialogs.files.push_back("/home/operator/old.log");
            ChooseMenu(Main().mnuRestore);
        } else {
            dialogs.inputs.push_back("YES");
            ChooseMenu(Main().mnuNew);
        }
        EXPECT_EQ(LogLines().size(), restores ? 4U : 0U);
        EXPECT_EQ(At(std::string{kDataFolder} + "/KEPT/20261107210433.log"), before);
        EXPECT_FALSE(files.contents.contains(kRecoveredPath)) << "nobody else has changed it";
        ExpectMemoryAndListAreTheDisks();
        TakeBoxes();
        program.reset();
    }
}

TEST_F(LogGuardTest, LogThatCannotBeLookedAtKeepsTheEntryAndTheContestGoesOn) {
    StartOnDamagedSettings(ManyContacts(500));
    files.unreachable[kLogPath] = "Permission denied";
    Commit("K2YY");
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Tallyhut Log\" \"/contest/Log.txt: Permission denied\" OK Exclamation"});
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    files.unreachable.clear();
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 501);
    EXPECT_EQ(LogLines().size(), 501U);
}

// Settings that could not be read.

TEST_F(LogGuardTest, DamagedSettingsAreKeptBeforeTheyAreReplacedAndTheLineSaysSo) {
    StartOnDamagedSettings(ManyContacts(3));
    ChooseMenu(Main().mnu20);
    EXPECT_EQ(At(kDamagedPath), kDamaged);
    EXPECT_EQ(Dialog(), std::string{"The settings could not be read; the file is kept as "} + kDamagedPath);
    EXPECT_EQ(At(kPreferencesPath), WritePreferences(program->preferences));
    ChooseMenu(Main().mnu40);
    EXPECT_FALSE(files.contents.contains("/contest/nspref-damaged-2.txt")) << "once is enough";
}

TEST_F(LogGuardTest, DamagedSettingsOfAnEarlierRunStay) {
    files.Put(kDamagedPath, "of an earlier run");
    StartOnDamagedSettings(ManyContacts(3));
    ChooseMenu(Main().mnu20);
    EXPECT_EQ(At(kDamagedPath), "of an earlier run");
    EXPECT_EQ(At("/contest/nspref-damaged-2.txt"), kDamaged);
}

TEST_F(LogGuardTest, DamagedSettingsThatCannotBeKeptAreNotReplaced) {
    StartOnDamagedSettings(ManyContacts(3));
    files.FailAt(1, "No space left on device");
    ChooseMenu(Main().mnu20);
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Tallyhut Log\" \"/contest/nspref-damaged.txt: No space left on device\" OK "
                                 "Exclamation"});
    EXPECT_EQ(At(kPreferencesPath), kDamaged);
    ChooseMenu(Main().mnu40);
    EXPECT_EQ(At(kDamagedPath), kDamaged) << "kept when it can be";
}

TEST_F(LogGuardTest, SettingsThatCanNeitherBeReadNorCopiedAreNotReplacedAndTheLogGoesOn) {
    PutLog(ManyContacts(500));
    files.irregular.insert(kPreferencesPath);  // it is there, and cannot be read
    StartQuietly();
    Commit("K2YY");
    EXPECT_EQ(LogLines().size(), 501U);
    EXPECT_EQ(TakeBoxes(), Lines{});
    for (MenuEntry* band : {&Main().mnu20, &Main().mnu40}) {
        ChooseMenu(*band);
        EXPECT_EQ(TakeBoxes(), Lines{"message \"Tallyhut Log\" \"/contest/nspref.txt: Not a regular file\" OK "
                                     "Exclamation"});
    }
    EXPECT_FALSE(files.contents.contains(kPreferencesPath));
    EXPECT_EQ(EndStatusOf([this] { ChooseMenu(Main().mnuExit); }), 1) << "the operating time could not be saved";
    EXPECT_EQ(LogLines().size(), 501U);
}

// Another hand.

/// What another hand does to the log, and what stands there then.
struct Hand {
    std::string_view name;
    void (*change)(LogGuardTest& test);
    std::string_view calls;  ///< in Log.txt behind it
};

const Hand kHands[] = {
    {"Swaps", [](LogGuardTest& test) { test.files.Put(kLogPath, LogText(ManyContacts(3))); }, "W1X W2X W3X"},
    {"SwapsForTheSame", [](LogGuardTest& test) { test.files.Put(kLogPath, test.LogOnDisk()); }, "W1X W2X W3X W4X"},
    {"Cuts", [](LogGuardTest& test) { test.files.contents[kLogPath] = LogText(ManyContacts(2)); }, "W1X W2X"},
    {"Empties", [](LogGuardTest& test) { test.files.contents[kLogPath].clear(); }, ""},
    {"Grows", [](LogGuardTest& test) { test.files.contents[kLogPath] += WriteRecord(Worked("N0HAND")); },
     "W1X W2X W3X W4X N0HAND"},
};

struct OtherHandTest : LogGuardTest, testing::WithParamInterface<Hand> {
    void StartAndChange() {
        StartOnDesk(ManyContacts(4));
        GetParam().change(*this);
        foreign = LogOnDisk();
    }
    void ExpectToldAndKept(const std::string& callsKept = "W1X W2X W3X W4X") {
        ASSERT_EQ(dialogs.boxes.size(), 1U);
        EXPECT_TRUE(
            dialogs.boxes[0].starts_with("message \"Log.txt has changed\" \"Another program or hand has changed"))
            << dialogs.boxes[0];
        EXPECT_NE(dialogs.boxes[0].find(kRecoveredPath), std::string::npos) << dialogs.boxes[0];
        EXPECT_EQ(CallsIn(At(kRecoveredPath)), callsKept);
        dialogs.boxes.clear();
    }
    std::string foreign;
};

TEST_P(OtherHandTest, YesAtACommitReadsTheFileAndKeepsTheEntry) {
    StartAndChange();
    dialogs.answers.push_back(Answer::Yes);
    Commit("K2YY");
    ExpectToldAndKept();
    EXPECT_EQ(LogOnDisk(), foreign) << "nothing was written to it";
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    EXPECT_EQ(Dialog(), "This contact is not logged yet!");
    ExpectMemoryAndListAreTheDisks();
    Press("Enter");
    EXPECT_EQ(TakeBoxes(), Lines{});
    EXPECT_EQ(CallsIn(LogOnDisk()), std::string{GetParam().calls} + (GetParam().calls.empty() ? "" : " ") + "K2YY");
}

TEST_P(OtherHandTest, NoAtACommitKeepsACopyOfTheFileAndGoesOnWithTheContactsOfTheProgram) {
    StartAndChange();
    dialogs.answers.push_back(Answer::No);
    Commit("K2YY");
    ExpectToldAndKept();
    EXPECT_EQ(At(kFoundPath), foreign);
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    ExpectMemoryAndListAreTheDisks();
    Press("Enter");
    EXPECT_EQ(TakeBoxes(), Lines{});
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X K2YY");
}

TEST_P(OtherHandTest, EditWritesNothingOverTheFile) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        files = sim::Files{kFolder};
        StartAndChange();
        ClickRow(0);
        Meanwhile([this] {
            EditForm().txtEditCall.SetText("K2YY");
            EditForm().cmdDone.Click();
        });
        dialogs.answers.push_back(answer);
        Click(Main().cmdEdit);
        ExpectToldAndKept("W1X W2X W3X K2YY");
        if (answer == Answer::Yes) {
            EXPECT_EQ(LogOnDisk(), foreign);
        } else {
            EXPECT_EQ(At(kFoundPath), foreign);
            EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X K2YY");
        }
        ExpectMemoryAndListAreTheDisks();
        program.reset();
    }
}

TEST_P(OtherHandTest, DeleteWritesNothingOverTheFile) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        files = sim::Files{kFolder};
        StartAndChange();
        ClickRow(0);
        dialogs.answers = {Answer::Yes, answer};
        Click(Main().cmdDelete);
        dialogs.boxes.erase(dialogs.boxes.begin());  // whether the operator is sure
        ExpectToldAndKept("W1X W2X W3X");
        if (answer == Answer::Yes) {
            EXPECT_EQ(LogOnDisk(), foreign);
        } else {
            EXPECT_EQ(At(kFoundPath), foreign);
            EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X");
        }
        ExpectMemoryAndListAreTheDisks();
        program.reset();
    }
}

TEST_P(OtherHandTest, NewLogKeepsWhatTheProgramHasAndWhatItFinds) {
    StartAndChange();
    dialogs.inputs.push_back("YES");
    ChooseMenu(Main().mnuNew);
    EXPECT_EQ(TakeBoxes().size(), 1U) << "the warning";
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(CallsIn(At(kRecoveredPath)), "W1X W2X W3X W4X");
    EXPECT_EQ(At(kKeptPath), foreign);
    ExpectMemoryAndListAreTheDisks();
}

TEST_P(OtherHandTest, RestoreKeepsWhatTheProgramHasAndWhatItFinds) {
    StartAndChange();
    files.Put("/home/operator/old.log", LogText({Worked("K9OLD")}));
    dialogs.answers = {Answer::OK, Answer::Yes};
    dialogs.files.push_back("/home/operator/old.log");
    ChooseMenu(Main().mnuRestore);
    EXPECT_EQ(TakeBoxes().size(), 3U);
    EXPECT_EQ(CallsIn(LogOnDisk()), "K9OLD");
    EXPECT_EQ(CallsIn(At(kRecoveredPath)), "W1X W2X W3X W4X");
    EXPECT_EQ(At(kKeptPath), foreign);
    ExpectMemoryAndListAreTheDisks();
}

TEST_P(OtherHandTest, NewLogErasesNothingWhereWhatTheProgramHasCannotBeKept) {
    StartAndChange();
    files.FailAt(1, "No space left on device");
    dialogs.inputs.push_back("YES");
    ChooseMenu(Main().mnuNew);
    EXPECT_EQ(TakeBoxes().back(),
              "message \"The log was not erased.\" \"The present log could not be copied first, so nothing was "
              "erased.\r\n\r\n/contest/Log-recovered.txt: No space left on device\" OK Exclamation");
    EXPECT_EQ(LogOnDisk(), foreign);
}

INSTANTIATE_TEST_SUITE_P(Hands, OtherHandTest, testing::ValuesIn(kHands),
                         [](const auto& hand) { return std::string{hand.param.name}; });

TEST_F(LogGuardTest, RemovedLogIsToldAndWrittenAnewOnYes) {
    StartOnDesk(ManyContacts(4));
    files.contents.erase(kLogPath);
    dialogs.answers.push_back(Answer::Yes);
    Commit("K2YY");
    EXPECT_EQ(TakeBoxes(),
              Lines{"message \"Log.txt has changed\" \"Another program or hand has taken the log away, so nothing was "
                    "written now. There is no file /contest/Log.txt.\r\n\r\nWhat this program has, 4 contacts, is in "
                    "/contest/Log-recovered.txt.\r\n\r\nYes writes Log.txt anew with the contacts of this program.\" "
                    "YesNo Exclamation"});
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    Press("Enter");
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X K2YY");
    ExpectMemoryAndListAreTheDisks();
}

TEST_F(LogGuardTest, RemovedLogStaysAwayOnNoAndIsAskedForAgain) {
    StartOnDesk(ManyContacts(4));
    files.contents.erase(kLogPath);
    dialogs.answers = {Answer::No, Answer::Yes};
    Commit("K2YY");
    EXPECT_FALSE(files.contents.contains(kLogPath));
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    EXPECT_EQ(CallsIn(At(kRecoveredPath)), "W1X W2X W3X W4X");
    Press("Enter");
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
}

TEST_F(LogGuardTest, ContactsThatCannotBeKeptBesideTheLogAreToldOf) {
    StartOnDesk(ManyContacts(4));
    files.contents.erase(kLogPath);
    files.FailAt(2, "No space left on device");  // behind the append that finds it gone
    dialogs.answers.push_back(Answer::Yes);
    Commit("K2YY");
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("The contacts of this program could not be kept beside it. "
                                    "/contest/Log-recovered.txt: No space left on device"),
              std::string::npos)
        << dialogs.boxes[0];
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
}

TEST_F(LogGuardTest, FileOfAnotherHandThatCannotBeCopiedIsNotWrittenOver) {
    StartOnDesk(ManyContacts(4));
    const std::string foreign = LogText(ManyContacts(3));
    files.Put(kLogPath, foreign);
    files.FailAt(3, "No space left on device");  // behind the append and the contacts that are kept
    dialogs.answers.push_back(Answer::No);
    Commit("K2YY");
    EXPECT_EQ(TakeBoxes().back(),
              "message \"Tallyhut Log\" \"/contest/Log-found.txt: No space left on device\" OK Exclamation");
    EXPECT_EQ(LogOnDisk(), foreign);
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    dialogs.answers.push_back(Answer::No);
    Press("Enter");
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X") << "it is told again";
}

TEST_F(LogGuardTest, NamesThatAreTakenAreLeftAlone) {
    StartOnDesk(ManyContacts(4));
    files.Put(kRecoveredPath, "of an earlier day");
    files.Put(kFoundPath, "of an earlier day");
    files.Put(kLogPath, LogText(ManyContacts(3)));
    dialogs.answers.push_back(Answer::No);
    Commit("K2YY");
    EXPECT_EQ(At(kRecoveredPath), "of an earlier day");
    EXPECT_EQ(At(kFoundPath), "of an earlier day");
    EXPECT_EQ(CallsIn(At("/contest/Log-recovered-2.txt")), "W1X W2X W3X W4X");
    EXPECT_EQ(CallsIn(At("/contest/Log-found-2.txt")), "W1X W2X W3X");
}

TEST_F(LogGuardTest, EntryThatAnotherHandHasLoggedMeanwhileIsNotThrownAway) {
    StartOnDesk(ManyContacts(4));
    files.contents[kLogPath] += WriteRecord(Worked("K2YY"));
    dialogs.answers.push_back(Answer::Yes);
    FillAll("88", "A", "K2YY", "72", "MDC");
    Focus(Main().txtCall);
    Press("Enter");  // starts the time, which moves the focus away from the call
    EXPECT_EQ(Fields(), "88|A|K2YY|72|MDC");
    EXPECT_EQ(Dialog(), "This contact is not logged yet!");
}

TEST_F(LogGuardTest, SwappedFolderIsToldAndTheLockFollows) {
    StartOnDesk(ManyContacts(4));
    files.SwapFolder(kFolder);
    dialogs.answers.push_back(Answer::Yes);
    Commit("K2YY");
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(files.Lock(kFolder), nullptr) << "a second program finds it held";
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
    Press("Enter");
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X K2YY");
}

TEST_F(LogGuardTest, SwappedFolderThatAnotherProgramHoldsIsNotWritten) {
    StartOnDesk(ManyContacts(4));
    files.SwapFolder(kFolder);
    files.lockedFolders.insert(kFolder);
    EXPECT_EQ(EndStatusOf([this] { Commit("K2YY"); }), 1);
    EXPECT_FALSE(files.contents.contains(kLogPath));
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("Another Tallyhut Log is already running in the folder /contest.\n\nThis contact "
                                    "was not logged: 88 A K2YY 72 MDC"),
              std::string::npos)
        << dialogs.boxes[0];
}

// What a box says of the disk.

TEST_F(LogGuardTest, AppendThatTheDiskDoesNotConfirmIsNotCalledUnlogged) {
    StartOnDesk(ManyContacts(4));
    program->time.gTimeOn = 1;
    FillAll("88", "A", "K2YY", "72", "MDC");
    Focus(Main().txtSec);
    files.FailBehind(1, "Input/output error");
    EXPECT_EQ(EndStatusOf([this] { Press("Enter"); }), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("This contact stands in the log, but may not outlast a loss of power: 88 A K2YY 72 "
                                    "MDC\n\n/contest/Log.txt holds 5 contacts."),
              std::string::npos)
        << dialogs.boxes[0];
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X K2YY");
}

TEST_F(LogGuardTest, ChangeThatTheDiskDoesNotConfirmIsShownAsMade) {
    StartOnDesk(ManyContacts(4));
    ClickRow(0);
    dialogs.answers.push_back(Answer::Yes);
    files.FailBehind(1, "Input/output error");
    EXPECT_EQ(EndStatusOf([this] { Click(Main().cmdDelete); }), std::nullopt);
    const std::string told = TakeBoxes().back();
    EXPECT_TRUE(told.starts_with("message \"Tallyhut Log\" \"/contest/Log.txt: It was written, but")) << told;
    EXPECT_EQ(told.find("not saved"), std::string::npos) << told;
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X");
    ExpectMemoryAndListAreTheDisks();
    Commit("K2YY");
    EXPECT_EQ(TakeBoxes(), Lines{}) << "the file is the one that was written";
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X K2YY");
}

TEST_F(LogGuardTest, FailedRewriteLeavesMemoryAndListAsTheDisk) {
    StartOnDesk(ManyContacts(4));
    ClickRow(0);
    dialogs.answers.push_back(Answer::Yes);
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] { Click(Main().cmdDelete); }), 1);
    const std::string told = TakeBoxes().back();
    EXPECT_NE(told.find("The change was not saved; the log is as it was before.\n\n/contest/Log.txt holds 4 contacts."),
              std::string::npos)
        << told;
    EXPECT_EQ(CallsIn(LogOnDisk()), "W1X W2X W3X W4X");
    ExpectMemoryAndListAreTheDisks();
}

TEST_F(LogGuardTest, ReadingAgainWhatAnotherHandHasCutKeepsTheContactsOfThisProgram) {
    for (const bool byColours : {false, true}) {
        StartOnDesk(ManyContacts(4));
        files.contents.erase("/contest/Log-recovered.txt");
        files.Put(kLogPath, LogText(ManyContacts(2)));
        if (byColours) {
            Meanwhile([this] { TheDesk().PostClick(program->colourForm.Command6, kLeftButton); });
            ChooseMenu(Main().mnuColors);
        } else {
            ChooseMenu(Main().mnuOpen);
        }
        EXPECT_EQ(CallsInMemory(), "W1X W2X");
        EXPECT_EQ(CallsIn(files.contents.at("/contest/Log-recovered.txt")), "W1X W2X W3X W4X");
        program.reset();
    }
}

TEST_F(LogGuardTest, NothingIsReadAgainWhereTheContactsOfThisProgramCannotBeKept) {
    StartOnDesk(ManyContacts(4));
    files.Put(kLogPath, LogText(ManyContacts(2)));
    files.FailAt(1, "No space left on device");
    ChooseMenu(Main().mnuOpen);
    EXPECT_NE(TakeBoxes().back().find("No space left on device"), std::string::npos);
    EXPECT_EQ(CallsInMemory(), "W1X W2X W3X W4X");
}

}  // namespace
}  // namespace tallyhut
