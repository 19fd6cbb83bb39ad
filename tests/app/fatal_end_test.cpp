#include <limits>

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kTimeRecords = "/contest/nsonoff.txt";

struct FatalEndTest : ProgramFixture {
    void OperateTenMinutes() {
        Start();
        Click(Main().cmdLogOn);
        PassTime(600'000);
        dialogs.boxes.clear();
    }
    std::optional<int> CommitThatFails() {
        FillAll("88", "A", "W1XX", "72", "MDC");
        Focus(Main().txtSec);
        files.FailAt(1, "No space left on device");
        return EndStatusOf([this] { Press("Enter"); });
    }
    std::optional<int> Break() {
        Main().cmdClear.Click = [] { throw std::runtime_error{"something broke"}; };
        return EndStatusOf([this] { Click(Main().cmdClear); });
    }
    std::string OnOff() const { return files.contents.at(kTimeRecords); }
    float SecondsOnDisk() const {
        Preferences read;
        ReadPreferences(files.contents.at(kPreferencesPath), read);
        return read.gOpSeconds;
    }
};

TEST_F(FatalEndTest, OperatingTimeIsClosedAndSavedWhereAContactCannotBeWritten) {
    OperateTenMinutes();
    EXPECT_EQ(CommitThatFails(), 1);
    EXPECT_EQ(SecondsOnDisk(), 600);
    EXPECT_EQ(OnOff(), "1,\"11/7/2026\",\"21:04:33\",\"00:00:00\"\r\n0,\"11/7/2026\",\"21:14:33\",\r\n");
    ASSERT_EQ(dialogs.boxes.size(), 1U) << "one box says all";
    EXPECT_EQ(dialogs.boxes[0].find("operating time"), std::string::npos) << dialogs.boxes[0];
}

TEST_F(FatalEndTest, OperatingTimeIsClosedAndSavedWhereAHandlerBreaks) {
    OperateTenMinutes();
    EXPECT_EQ(Break(), 1);
    EXPECT_EQ(SecondsOnDisk(), 600);
    EXPECT_TRUE(OnOff().ends_with("0,\"11/7/2026\",\"21:14:33\",\r\n")) << OnOff();
}

TEST_F(FatalEndTest, WhatOfTheOperatingTimeCouldNotBeSavedIsToldInTheSameBox) {
    OperateTenMinutes();
    files.FailAt(1, "No space left on device");
    files.FailAt(2, "Input/output error");
    EXPECT_EQ(Break(), 1);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{
                                 "message \"Tallyhut Log\" \"The program must end.\n\nsomething broke\n\nNot all of "
                                 "the operating time could be saved. /contest/nspref.txt: No space left on "
                                 "device\n/contest/nsonoff.txt: Input/output error\n\n/contest/Log.txt holds 0 "
                                 "contacts.\" OK Critical"});
}

TEST_F(FatalEndTest, SecondsThatAreNoNumberDoNotKeepTheFailureFromBeingTold) {
    OperateTenMinutes();
    program->time.gOpSecondsNow = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Break(), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("something broke"), std::string::npos) << dialogs.boxes[0];
}

TEST_F(FatalEndTest, EntryInTheFieldsIsToldWhereACorrectionCannotBeWritten) {
    PutLog(ManyContacts(2));
    Start();
    FillAll("89", "B", "K1AB", "73", "CT");
    TheDesk().PostRowClick(Main().ListView1, 0, kLeftButton);
    TheDesk().RunPending();
    dialogs.answers.push_back(Answer::Yes);
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] { Click(Main().cmdDelete); }), 1);
    EXPECT_TRUE(
        dialogs.boxes.back().ends_with("/contest/Log.txt holds 2 contacts. This entry was not logged: 89 B K1AB "
                                       "73 CT\" OK Critical"))
        << dialogs.boxes.back();
}

TEST_F(FatalEndTest, ContactThatCannotBeWrittenIsToldOnce) {
    OperateTenMinutes();
    EXPECT_EQ(CommitThatFails(), 1);
    const std::string& told = dialogs.boxes.at(0);
    EXPECT_EQ(told.find("88 A W1XX 72 MDC"), told.rfind("88 A W1XX 72 MDC")) << told;
}

TEST_F(FatalEndTest, StoppedTimeTouchesNoFile) {
    Start();
    EXPECT_EQ(Break(), 1);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(FatalEndTest, EntryInTheFieldsIsToldWithTheNumberOfContactsThatStand) {
    PutLog(ManyContacts(2));
    Start();
    FillAll("89", "B", "K1AB", "73", "CT");
    EXPECT_EQ(Break(), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(
        dialogs.boxes[0].ends_with("/contest/Log.txt holds 2 contacts. This entry was not logged: 89 B K1AB 73 "
                                   "CT\" OK Critical"))
        << dialogs.boxes[0];
}

}  // namespace
}  // namespace tallyhut
