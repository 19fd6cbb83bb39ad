#include "log/known_calls_setup.h"

#include "tests/log/known_calls_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kOtherPath = "/home/operator/other.txt";

struct KnownCallsSetupTest : KnownCallsFixture {
    /// Opens the dialog from the menu, runs the steps in it, and closes it with Done unless they closed it.
    void Open(const std::function<void()>& steps) {
        Meanwhile([this, steps] {
            steps();
            if (KnownForm().IsVisible()) {
                Click(KnownForm().cmdDone);
            }
        });
        ChooseMenu(Main().mnuKnownCalls);
        EXPECT_FALSE(KnownForm().IsLoaded());
    }
    /// "PATH|on|5 calls" of the history, and of super check partial.
    std::string History() { return Shown(KnownForm().txtHistory, KnownForm().chkHistory, KnownForm().lblHistory); }
    std::string SuperCheckShown() { return Shown(KnownForm().txtScp, KnownForm().chkScp, KnownForm().lblScpCount); }
    std::string Stored(const std::string& key) { return settings.values[{"Machine", key}]; }
    KnownCallFiles& Known() { return program->logPart.knownCalls; }

private:
    static std::string Shown(const TextBox& path, const CheckBox& use, const Label& count) {
        return path.Text() + '|' + (use.Value() ? "on" : "off") + '|' + count.Caption();
    }
};

std::string Refusal(const std::string& why) {
    return "message \"Known Calls\" \"" + why + "\" OK Exclamation";
}

TEST_F(KnownCallsSetupTest, EntryStandsInTheSettingsMenu) {
    Start();
    EXPECT_EQ(Main().mnuKnownCalls.Caption(), "&Known Calls");
    EXPECT_EQ(Main().mnuKnownCalls.Above(), &Main().mnuSettings);
}

TEST_F(KnownCallsSetupTest, WithoutFilesNothingIsChosenAndNothingStored) {
    StartOnDesk();
    Open([this] {
        EXPECT_EQ(History(), "|off|0 calls");
        EXPECT_EQ(SuperCheckShown(), "|off|0 calls");
    });
    EXPECT_TRUE(settings.values.empty());
}

TEST_F(KnownCallsSetupTest, AChosenHistoryIsCountedSwitchedOnAndStored) {
    files.Put(kHistoryPath, history);
    StartOnDesk();
    dialogs.files = {kHistoryPath};
    Open([this] {
        Click(KnownForm().cmdHistory);
        EXPECT_EQ(History(), std::string{kHistoryPath} + "|on|5 calls");
    });
    EXPECT_EQ(TakeBoxes(), Lines{"open \"Call History\" \"Call Histories (*.txt;*.csv)|*.txt;*.csv|All Files (*)|*\" "
                                 "\"/contest\" \"\""});
    EXPECT_EQ(Stored("CallHistory"), kHistoryPath);
    EXPECT_EQ(Stored("FillFromHistory"), "1");
    Type("88aw1xx ");
    EXPECT_EQ(Suggested(), "(72) (MDC)");
}

TEST_F(KnownCallsSetupTest, ChosenCallsAreCountedShownAndStored) {
    files.Put(kOtherPath, "K1AB\nW1XX\n");
    StartOnDesk();
    dialogs.files = {kOtherPath};
    Open([this] {
        Click(KnownForm().cmdScp);
        EXPECT_EQ(SuperCheckShown(), std::string{kOtherPath} + "|on|2 calls");
    });
    EXPECT_EQ(TakeBoxes(),
              Lines{"open \"Super Check Partial\" \"Lists of Calls (*.scp;*.SCP)|*.scp;*.SCP|All Files (*)|*\" "
                    "\"/contest\" \"\""});
    EXPECT_EQ(Stored("SuperCheck"), kOtherPath);
    EXPECT_EQ(Stored("ShowSuperCheck"), "1");
    EXPECT_TRUE(Main().lblScp.IsShown());
}

TEST_F(KnownCallsSetupTest, TheListOfTheFolderIsOnByItselfAndAChosenOneWins) {
    files.Put(kOtherPath, "K1AB\nW1XX\n");
    StartWithCalls("K9ZO\n");
    Open([this] { EXPECT_EQ(SuperCheckShown(), "|on|1 calls"); });
    EXPECT_TRUE(settings.values.empty());
    dialogs.files = {kOtherPath};
    Open([this] {
        Click(KnownForm().cmdScp);
        EXPECT_EQ(SuperCheckShown(), std::string{kOtherPath} + "|on|2 calls");
    });
    StartOnDesk();
    EXPECT_EQ(Known().superCheck.Count(), 2U);
    Open([this] { KnownForm().txtScp.ReplaceByPaste(""); });
    EXPECT_EQ(Known().superCheck.Count(), 1U) << "without a chosen one that of the folder counts again";
    EXPECT_TRUE(Known().showsCalls);
}

TEST_F(KnownCallsSetupTest, TheNextStartHasTheChoices) {
    files.Put(kHistoryPath, history);
    StartWithCalls("K9ZO\n");
    dialogs.files = {kHistoryPath};
    Open([this] {
        Click(KnownForm().cmdHistory);
        Click(KnownForm().chkHistory);
        Click(KnownForm().chkScp);
        EXPECT_FALSE(Main().lblScp.IsShown()) << "at once";
    });
    StartOnDesk();
    Open([this] {
        EXPECT_EQ(History(), std::string{kHistoryPath} + "|off|5 calls");
        EXPECT_EQ(SuperCheckShown(), "|off|1 calls");
        Click(KnownForm().chkHistory);
        Click(KnownForm().chkScp);
        EXPECT_TRUE(Main().lblScp.IsShown());
    });
    StartOnDesk();
    EXPECT_TRUE(Known().fillsIn);
    EXPECT_TRUE(Known().showsCalls);
}

TEST_F(KnownCallsSetupTest, ATypedPathIsTakenByEnterAndByDone) {
    files.Put("/contest/mine.txt", history);
    files.Put(kOtherPath, "K1AB\n");
    StartOnDesk();
    Open([this] {
        KnownForm().txtHistory.ReplaceByPaste(" mine.txt ");
        KnownForm().txtHistory.SetFocus();
        Press("Enter");
        EXPECT_EQ(History(), "/contest/mine.txt|on|5 calls");
        KnownForm().txtScp.ReplaceByPaste(kOtherPath);
    });
    EXPECT_EQ(Stored("CallHistory"), "/contest/mine.txt");
    EXPECT_EQ(Stored("SuperCheck"), kOtherPath);
    EXPECT_EQ(Known().superCheck.Count(), 1U);
}

TEST_F(KnownCallsSetupTest, AnEmptiedPathChoosesNoHistory) {
    StartWithHistory();
    Open([this] { KnownForm().txtHistory.ReplaceByPaste(""); });
    EXPECT_EQ(Stored("CallHistory"), "");
    EXPECT_EQ(Stored("FillFromHistory"), "0");
    EXPECT_EQ(Known().history.Count(), 0U);
}

TEST_F(KnownCallsSetupTest, ChoosingAFileAgainReadsItAnew) {
    StartWithHistory();
    files.Put(kHistoryPath, history + "N0NEW,MN,01,\r\n");
    EXPECT_EQ(Known().history.Count(), 5U);
    dialogs.files = {kHistoryPath};
    Open([this] {
        Click(KnownForm().cmdHistory);
        EXPECT_EQ(History(), std::string{kHistoryPath} + "|on|6 calls");
    });
}

TEST_F(KnownCallsSetupTest, AFileThatCannotBeTakenIsToldAndTheChoiceBeforeStands) {
    files.Put("/contest/empty", std::string(1000, '\0'));
    StartWithHistory();
    dialogs.files = {"/contest/empty", "/contest/none", "/contest", "/contest/empty"};
    Open([this] {
        Click(KnownForm().cmdHistory);
        Click(KnownForm().cmdHistory);
        Click(KnownForm().cmdHistory);
        EXPECT_EQ(History(), std::string{kHistoryPath} + "|on|5 calls");
        Click(KnownForm().cmdScp);
        EXPECT_EQ(SuperCheckShown(), "|off|0 calls");
    });
    std::vector<std::string> boxes = TakeBoxes();
    std::erase_if(boxes, [](const std::string& box) { return box.starts_with("open "); });
    ASSERT_EQ(boxes.size(), 4U);
    EXPECT_EQ(boxes[0], Refusal("It is no call history: no line begins with !!Order!! and names its columns."));
    EXPECT_EQ(boxes[1], Refusal("/contest/none: No such file or directory"));
    EXPECT_TRUE(boxes[2].starts_with("message \"Known Calls\" \"/contest: ")) << boxes[2];
    EXPECT_EQ(boxes[3], Refusal("It is no list of calls: no line of it holds a call."));
    EXPECT_EQ(Stored("CallHistory"), kHistoryPath);
}

TEST_F(KnownCallsSetupTest, DoneStaysWhileATypedPathCannotBeTaken) {
    StartOnDesk();
    Open([this] {
        KnownForm().txtHistory.ReplaceByPaste("/contest/none");
        Click(KnownForm().cmdDone);
        EXPECT_TRUE(KnownForm().IsVisible());
        EXPECT_EQ(KnownForm().txtHistory.Text(), "/contest/none") << "to be corrected";
        Press("Esc");
        EXPECT_FALSE(KnownForm().IsVisible());
    });
    EXPECT_EQ(TakeBoxes(), Lines{Refusal("/contest/none: No such file or directory")});
    EXPECT_TRUE(settings.values.empty());
}

TEST_F(KnownCallsSetupTest, WhereTheChoiceCannotBeStoredItCountsForThisRun) {
    files.Put(kHistoryPath, history);
    StartOnDesk();
    settings.failure = "disk full";
    dialogs.files = {kHistoryPath};
    Open([this] { Click(KnownForm().cmdHistory); });
    EXPECT_EQ(TakeBoxes().back(), Refusal("disk full"));
    EXPECT_EQ(Known().history.Count(), 5U);
    EXPECT_TRUE(Known().fillsIn);
}

TEST_F(KnownCallsSetupTest, AStartTellsOfAFileThatCannotBeTakenAndGoesOnWithoutIt) {
    settings.values[{"Machine", "CallHistory"}] = kHistoryPath;
    settings.values[{"Machine", "FillFromHistory"}] = "1";
    files.Put(kScpPath, "nothing\n");
    const std::vector<std::string> boxes = BoxesOfStart(2);
    ASSERT_GE(boxes.size(), 3U);
    EXPECT_EQ(boxes[0], Refusal("The call history cannot be taken from /home/operator/history.txt.\n\n"
                                "/home/operator/history.txt: No such file or directory\n\n"
                                "Until that is put right no check and no section is filled in."));
    EXPECT_EQ(boxes[1], Refusal("The calls for super check partial cannot be taken from /contest/MASTER.SCP.\n\n"
                                "It is no list of calls: no line of it holds a call.\n\n"
                                "Until that is put right no calls are shown beneath the possible duplicates."));
    EXPECT_EQ(Stored("CallHistory"), kHistoryPath) << "it stays chosen";
    EXPECT_EQ(Stored("FillFromHistory"), "1");
    Type("88aw1xx 72mdc");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U) << "logging goes on";
}

TEST_F(KnownCallsSetupTest, KnownCallsAreThoseOfBothFiles) {
    files.Put(kScpPath, "K9ZO\nAK1A\n");
    StartWithHistory();
    const KnownCalls known = Known().All();
    for (const char* call : {"W1XX", "K9ZO", "AK1A", "K1BAD"}) {
        EXPECT_TRUE(known.Knows(call)) << call;
    }
    EXPECT_FALSE(known.Knows("K1A"));
    EXPECT_EQ(known.OneLetterAway("K1A"), "AK1A");
}

}  // namespace
}  // namespace tallyhut
