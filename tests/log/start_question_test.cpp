#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

const std::string kQuestionLine =
    "message \"Open existing log?\" \"Do you want to continue an existing contest? (Yes opens your existing log, No "
    "erases any existing log and starts a new log.)\" YesNo Question";
const std::string kNewLogLine =
    "input \"WARNING - Your existing log file will be ERASED!\" \"Are you sure that you want to start a new log file?  "
    "This function will ERASE the existing log file!\r\n\r\nTo verify that you want to start a new log file, please "
    "type: YES\" \"\"";

struct StartQuestionTest : EditingFixture {
    void AnswerStationForm() {
        Meanwhile([this] { Press("Enter"); });
    }
    void Ask(Answer answer, const std::string& typed = "") {
        AnswerStationForm();
        dialogs.answers.push_back(answer);
        dialogs.inputs.push_back(typed);
        program->question.PromptLogStart();
        EXPECT_FALSE(pump.HasScripts());
    }
    /// As a handler calls it: what leaves it is fatal.
    std::optional<int> EndOfAsking(Answer answer, const std::string& typed = "") {
        AnswerStationForm();
        dialogs.answers.push_back(answer);
        dialogs.inputs.push_back(typed);
        return EndStatusOf([this] {
            TheDesk().PostAction([this] { program->question.PromptLogStart(); });
            TheDesk().RunPending();
        });
    }
};

TEST_F(StartQuestionTest, YesOpensTheExistingLog) {
    StartOnDesk(ManyContacts(3));
    files.Put(kLogPath, LogText(ManyContacts(5)));
    Ask(Answer::Yes);
    EXPECT_EQ(TakeBoxes(), Lines{kQuestionLine});
    EXPECT_EQ(program->log.gContactCount(), 5);
}

TEST_F(StartQuestionTest, StationComesBeforeTheQuestion) {
    StartOnDesk(ManyContacts(3));
    Meanwhile([this] {
        EXPECT_TRUE(StationForm().IsActive());
        EXPECT_EQ(TakeBoxes(), Lines{});
        StationForm().RequestClose();
    });
    dialogs.answers.push_back(Answer::Yes);
    program->question.PromptLogStart();
    EXPECT_EQ(TakeBoxes(), Lines{kQuestionLine});
}

TEST_F(StartQuestionTest, NoAndYesTypedStartsANewLog) {
    StartOnDesk(ManyContacts(3));
    Ask(Answer::No, "YES");
    EXPECT_EQ(TakeBoxes(), (Lines{kQuestionLine, kNewLogLine}));
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(program->log.gContactCount(), 0);
}

TEST_F(StartQuestionTest, NoAndYesTypedMakesTheFirstLog) {
    StartOnDesk();
    files.contents.erase(kLogPath);
    Ask(Answer::No, "YES");
    EXPECT_TRUE(files.FileExists(kLogPath));
    EXPECT_EQ(files.contents.at(kTimeRecordsPath), "");
}

TEST_F(StartQuestionTest, NoAndAnythingElseLoadsTheOldLogAndErasesNothing) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    for (const char* typed : {"", "no", "YES "}) {
        Ask(Answer::No, typed);
        EXPECT_EQ(LogOnDisk(), before) << typed;
        EXPECT_EQ(program->log.gContactCount(), 3) << typed;
    }
}

TEST_F(StartQuestionTest, YesWithoutALogIsTheFileErrorBox) {
    StartOnDesk();
    files.contents.erase(kLogPath);
    EXPECT_EQ(EndOfAsking(Answer::Yes), 1);
    EXPECT_EQ(TakeBoxes(), (Lines{kQuestionLine, kFileErrorLine}));
}

TEST_F(StartQuestionTest, StationThatCannotBeSavedIsToldAndTheQuestionComes) {
    StartOnDesk(ManyContacts(3));
    files.FailAt(1, "No space left on device");
    dialogs.answers.push_back(Answer::OK);
    Ask(Answer::Yes);
    EXPECT_EQ(TakeBoxes(), (Lines{"message \"Error.\" \"/contest/nspref.txt: No space left on device\" OK Exclamation",
                                  kQuestionLine}));
}

TEST_F(StartQuestionTest, NewLogWhoseTimeRecordsCannotBeEmptiedIsToldAndTheStartGoesOn) {
    StartOnDesk(ManyContacts(3), 2);
    files.FailAt(5, "Permission denied");  // the settings, the folder and the copy, the log, the time records
    Main().txtNum.SetTabIndex(9);
    Ask(Answer::No, "YES");
    EXPECT_EQ(TakeBoxes(), (Lines{kQuestionLine, kNewLogLine,
                                  "message \"Error.\" \"/contest/nsonoff.txt: Permission denied\" OK Exclamation"}));
    EXPECT_EQ(Main().txtNum.State().tabIndex, 2);
}

TEST_F(StartQuestionTest, LogThatCannotBeEmptiedIsFatalHereToo) {
    StartOnDesk(ManyContacts(3));
    const std::string before = LogOnDisk();
    files.FailAt(4, "Read-only file system");  // behind the settings, the folder of what is kept, and the copy
    EXPECT_EQ(EndOfAsking(Answer::No, "YES"), 1);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_EQ(TakeBoxes().back(),
              "message \"Tallyhut Log\" \"The program must end.\n\n/contest/Log.txt: Read-only file system\n\nThe new "
              "log was not started; the log is as it was before.\n\n/contest/Log.txt holds 3 contacts.\" OK Critical");
}

TEST_F(StartQuestionTest, CallFirstModeHasItsTabPositionsBehindTheQuestion) {
    StartOnDesk(ManyContacts(1), 2);
    Main().txtCall.SetTabIndex(9);
    Ask(Answer::Yes);
    EXPECT_EQ(Main().txtCall.State().tabIndex, 1);
}

}  // namespace
}  // namespace tallyhut
