#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kNoAnswer = "Radio: no answer";
constexpr const char* kNotTuned = "message \"Error Changing Frequency\" \"The radio does not answer.\" OK Exclamation";
constexpr const char* kModeNotSet = "message \"Error Changing Mode\" \"CW The radio does not answer.\" OK Exclamation";

struct Replies {
    std::string_view rig;
    std::string_view frequency;  ///< 14.2 MHz
    std::string_view mode;
};
constexpr Replies kKenwood{"Kenwood", "FA00014200000;", "MD3;"};
constexpr Replies kNineDigits{"Yaesu FTdx10", "FA014200000;", "MD03;"};

struct LostRadioTest : RigFixture {
    std::string Told() { return Main().lblRig.Caption(); }
    std::string Stamp() { return program->log.gFrq; }

    /// The radio has answered at this moment, and never does again.
    void FallSilent(const Replies& replies, Option RigControlfrm::*rate = &RigControlfrm::optPollMed) {
        Start();
        PickRig(replies.rig);
        Click(Rig().*rate);
        Click(Rig().Command1);
        Line().Receive(replies.frequency);
        LetTimeGoBy(static_cast<Tick>(Rig().tmrGetData.Interval()));
        ASSERT_EQ(Told(), "14.2000");
        Line().TakeSent();
    }
    void Lose(const Replies& replies) {
        FallSilent(replies);
        LetTimeGoBy(5'000);
        ASSERT_EQ(Told(), kNoAnswer);
        Line().TakeSent();
    }
    void PullTheCable(const Replies& replies) {
        FallSilent(replies);
        Line().Unplug();
    }
    /// Seconds from now at which the port is opened, each time failing for want of a device.
    std::vector<Tick> AttemptsWithin(Tick seconds) {
        std::vector<Tick> attempts;
        const Tick begin = clock.TickMs();
        program->rigPart.rigConnection.mayTakePort = [&](int) {
            attempts.push_back((clock.TickMs() - begin) / 1000);
            return true;
        };
        LetTimeGoBy(1'000 * seconds);
        program->rigPart.rigConnection.mayTakePort = [](int) { return true; };
        return attempts;
    }
};

TEST_F(LostRadioTest, IsLostAfterFiveSecondsOrThreePollsIfTheyAreLonger) {
    const std::vector<std::pair<Option RigControlfrm::*, Tick>> cases{{&RigControlfrm::optPollFast, 5'000},
                                                                      {&RigControlfrm::optPollMed, 5'000},
                                                                      {&RigControlfrm::optPollSlow, 6'000},
                                                                      {&RigControlfrm::optReallySlow, 30'000}};
    for (const auto& [rate, patience] : cases) {
        FallSilent(kKenwood, rate);
        LetTimeGoBy(patience - 1);
        EXPECT_EQ(Told(), "14.2000") << patience;
        LetTimeGoBy(1);
        EXPECT_EQ(Told(), kNoAnswer) << patience;
    }
}

TEST_F(LostRadioTest, PulledCableIsLostAsLateAsASilentRadio) {
    const std::vector<std::pair<Option RigControlfrm::*, Tick>> cases{{&RigControlfrm::optPollFast, 5'000},
                                                                      {&RigControlfrm::optPollMed, 5'000},
                                                                      {&RigControlfrm::optPollSlow, 6'000},
                                                                      {&RigControlfrm::optReallySlow, 30'000}};
    for (const auto& [rate, patience] : cases) {
        FallSilent(kKenwood, rate);
        Line().Unplug();
        LetTimeGoBy(patience - 1);
        EXPECT_EQ(Told(), "14.2000") << patience;
        LetTimeGoBy(1);
        EXPECT_EQ(Told(), kNoAnswer) << patience;
        Line().Plug();
    }
}

TEST_F(LostRadioTest, PollsThatRestForACommandLoseNothing) {
    StartPolling("Elecraft");
    ReplyAndRead("FA00014200000;MD3;");
    for (int i = 0; i < 5; ++i) {  // no poll comes in between
        ChangeFrequency(14.2F);
    }
    EXPECT_EQ(Told(), "14.2000");
}

TEST_F(LostRadioTest, SilentRadioIsAskedOnAndIsBackWithItsFirstReply) {
    Lose(kKenwood);
    LetTimeGoBy(10'000);
    EXPECT_EQ(Line().TakeSent().size(), 20 * std::string{"FA;MD;"}.size());
    Line().Reply("FA;", "FA00021300000;");
    LetTimeGoBy(500);
    EXPECT_EQ(Told(), "21.3000");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(LostRadioTest, RadiosThatNobodyHearsAreNeverLost) {
    for (const std::string_view rig : {"Other", "Ten Tec Pegasus"}) {
        StartPolling(rig);
        LetTimeGoBy(60'000);
        EXPECT_EQ(Told(), "") << rig;
        Line().Unplug();
        LetTimeGoBy(60'000);
        EXPECT_EQ(Told(), "") << rig;
        EXPECT_TRUE(dialogs.boxes.empty());
        Line().Plug();
    }
}

TEST_F(LostRadioTest, TuningGivesOneBoxAndIsDropped) {
    Lose(kKenwood);
    ChangeFrequency(7.03F);
    EXPECT_EQ(dialogs.boxes, Lines{kNotTuned});
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    Line().Reply("FA;", "FA00021300000;");
    LetTimeGoBy(60'000);
    EXPECT_EQ(Told(), "21.3000");
    EXPECT_EQ(Line().TakeSent().find("FA0"), std::string::npos) << "not delivered later";
    EXPECT_EQ(dialogs.boxes, Lines{kNotTuned});
    ChangeFrequency(7.03F);
    EXPECT_NE(Line().TakeSent().find("MD3;FA00007030000;"), std::string::npos);
}

TEST_F(LostRadioTest, ModeButtonGivesOneBoxAndIsDropped) {
    Lose(kKenwood);
    ChangeMode("CW");
    EXPECT_EQ(dialogs.boxes, Lines{kModeNotSet});
    LetTimeGoBy(10'000);
    EXPECT_EQ(Line().TakeSent().find("MD3;"), std::string::npos);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(LostRadioTest, TuningEndsTheScan) {
    Lose(kKenwood);
    program->tuneForm.Show();
    program->tuneForm.txtFreq.SetText("7.03");
    program->tuneForm.txtFrom.SetText("7");
    program->tuneForm.txtTo.SetText("7.1");
    Click(program->tuneForm.chkScan);
    LetTimeGoBy(10'000);
    EXPECT_EQ(dialogs.boxes, Lines{kNotTuned});
    EXPECT_FALSE(program->tuneForm.chkScan.Value());
}

TEST_F(LostRadioTest, ContactsBearNoFrequencyOfANineDigitRadio) {
    FallSilent(kNineDigits);
    ASSERT_EQ(Stamp(), "14.200");
    LetTimeGoBy(5'000);
    EXPECT_EQ(Told(), kNoAnswer);
    EXPECT_EQ(Stamp(), "");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(FrequencyRead(), "14.20000");
    EXPECT_TRUE(State().polls);
}

TEST_F(LostRadioTest, ContactsBearTheLastFrequencyOfATold) {
    for (const Replies& replies : {kKenwood, Replies{"Yaesu FTdx9000", "FA14200000;", "MD03;"}}) {
        FallSilent(replies);
        LetTimeGoBy(60'000);
        EXPECT_EQ(Told(), kNoAnswer);
        EXPECT_EQ(Stamp(), "14.200") << replies.rig;
    }
}

TEST_F(LostRadioTest, NineDigitRadioThatIsBackWithItsModeHasNoFrequencyYet) {
    Lose(kNineDigits);
    for (const std::string_view garbage : {"?;", "FA014200000"}) {
        Line().Receive(garbage);
        LetTimeGoBy(500);
        EXPECT_EQ(Stamp(), "") << garbage;
        EXPECT_EQ(Told(), kNoAnswer) << garbage;
    }
    Line().Receive(kNineDigits.mode);
    LetTimeGoBy(500);
    EXPECT_EQ(State().RigMode, "CW");
    EXPECT_EQ(Stamp(), "");
    EXPECT_EQ(Told(), "");
    Line().Receive("FA021300000;");
    LetTimeGoBy(500);
    EXPECT_EQ(Stamp(), "21.300");
    EXPECT_EQ(Told(), "21.3000");
}

TEST_F(LostRadioTest, NineDigitRadioBearsNothingOfTheRadioBeforeIt) {
    FallSilent(kKenwood);
    PickRig("Yaesu FTdx10");
    program->log.gFrq.clear();
    Click(Rig().Command1);
    NextTick(2);
    ReplyAndRead(kNineDigits.mode);
    EXPECT_EQ(State().RigMode, "CW");
    EXPECT_EQ(Stamp(), "");
}

TEST_F(LostRadioTest, WithoutARadioNothingIsSaid) {
    Lose(kKenwood);
    PickRig("None");
    EXPECT_EQ(Told(), "");
    LetTimeGoBy(60'000);
    EXPECT_EQ(Told(), "");
}

TEST_F(LostRadioTest, DeviceThatIsBackIsOpenedAndAsked) {
    PullTheCable(kKenwood);
    LetTimeGoBy(250);  // the next request fails
    EXPECT_FALSE(Line().isOpen);
    Line().Plug();
    LetTimeGoBy(999);
    EXPECT_FALSE(Line().isOpen);
    LetTimeGoBy(1);
    EXPECT_TRUE(Line().isOpen);
    EXPECT_EQ(SettingsText(Line().settings), "4800,N,8,2");
    Line().Reply("FA;", "FA00021300000;");
    LetTimeGoBy(500);
    EXPECT_EQ(Told(), "21.3000");
    EXPECT_EQ(program->preferences.gBand, "15");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(LostRadioTest, PausesGrowToTenSeconds) {
    PullTheCable(kKenwood);
    LetTimeGoBy(250);
    EXPECT_EQ(AttemptsWithin(50), (std::vector<Tick>{1, 3, 8, 18, 28, 38, 48}));
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(LostRadioTest, PausesBeginAnewAfterAMinuteOfAGoodConnection) {
    PullTheCable(kKenwood);
    LetTimeGoBy(250);
    LetTimeGoBy(3'500);  // two attempts have failed
    Line().Plug();
    LetTimeGoBy(5'000);
    ASSERT_TRUE(Line().isOpen);
    Line().Unplug();
    LetTimeGoBy(500);
    ASSERT_FALSE(Line().isOpen);
    Line().Plug();
    LetTimeGoBy(9'000);
    EXPECT_FALSE(Line().isOpen) << "it is soon gone again";
    LetTimeGoBy(1'000);
    ASSERT_TRUE(Line().isOpen);
    LetTimeGoBy(60'000);
    Line().Unplug();
    LetTimeGoBy(500);
    ASSERT_FALSE(Line().isOpen);
    Line().Plug();
    LetTimeGoBy(1'000);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, OpeningSendsAndSetsWhatTheFirstOneDid) {
    Start();
    PickRig("Ten Tec Orion");
    Click(Rig().optPowerDTR);
    Click(Rig().Command1);
    ReplyAndRead("@AF14200000\r");
    Line().Unplug();
    LetTimeGoBy(500);
    Line().Plug();
    Line().TakeSent();
    LetTimeGoBy(1'000);
    EXPECT_EQ(Line().TakeSent().substr(0, 2), "X\r");
    EXPECT_EQ(Line().dtr, true);
    EXPECT_EQ(Line().handshake, Handshake::Rts);
}

TEST_F(LostRadioTest, PortThatSomebodyElseHasIsWaitedFor) {
    PullTheCable(kKenwood);
    LetTimeGoBy(500);
    Line().Plug();
    Line().refusal = "Device or resource busy";
    LetTimeGoBy(60'000);
    EXPECT_FALSE(Line().isOpen);
    EXPECT_TRUE(dialogs.boxes.empty());
    Line().refusal.clear();
    LetTimeGoBy(10'000);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, NumberThatMeansAnotherDeviceMeanwhileIsLetBe) {
    serialPorts.devices = {{.path = "/dev/ttyUSB0"}, {.path = "/dev/ttyUSB1"}};
    PullTheCable(kKenwood);
    LetTimeGoBy(500);
    serialPorts.devices = {{.path = "/dev/ttyUSB1"}};  // port 1 now, and the keyer's
    Line().Plug();
    LetTimeGoBy(60'000);
    EXPECT_FALSE(Line().isOpen);
    serialPorts.devices = {{.path = "/dev/ttyUSB0"}, {.path = "/dev/ttyUSB1"}};
    LetTimeGoBy(10'000);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, DeviceThatTheOperatorChoosesMeanwhileIsOpened) {
    serialPorts.devices = {{.path = "/dev/ttyUSB0"}};
    PullTheCable(kKenwood);
    LetTimeGoBy(500);
    serialPorts.devices = {{.path = "/dev/ttyUSB1"}};
    serialPorts.Choose(1, "/dev/ttyUSB1");
    Line().Plug();
    LetTimeGoBy(10'000);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, EndTestAnotherRadioAndTheEndOfTheProgramEndTheReopening) {
    for (const auto& ends : std::vector<std::function<void()>>{
             [this] { Click(Rig().Command2); }, [this] { PickRig("Icom"); }, [this] { Rig().Unload(); }}) {
        PullTheCable(kKenwood);
        LetTimeGoBy(500);
        ends();
        Line().Plug();
        LetTimeGoBy(60'000);
        EXPECT_FALSE(Line().isOpen);
        EXPECT_FALSE(State().portGone);
        EXPECT_TRUE(dialogs.boxes.empty());
    }
}

TEST_F(LostRadioTest, TestOpensAtOnceAndIsTheOnlyOneThatTellsOfAFailure) {
    PullTheCable(kKenwood);
    LetTimeGoBy(10'000);
    EXPECT_TRUE(dialogs.boxes.empty());
    Click(Rig().Command1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(dialogs.boxes.front().starts_with("message \"Invalid Comm Settings.\""));
    EXPECT_FALSE(State().polls);
    Line().Plug();
    LetTimeGoBy(60'000);
    EXPECT_FALSE(Line().isOpen) << "the operator has been told that nothing is polled";
    Click(Rig().Command1);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, TuningFindsTheCableOutAndEachTryGivesOneBox) {
    PullTheCable(kKenwood);
    ChangeFrequency(7.03F);
    EXPECT_EQ(dialogs.boxes, Lines{"message \"Error Changing Frequency\" \"Serial port 1: Input/output error\" OK "
                                   "Exclamation"});
    EXPECT_FALSE(Line().isOpen);
    ChangeFrequency(7.03F);
    ChangeMode("CW");
    EXPECT_EQ((Lines{dialogs.boxes.begin() + 1, dialogs.boxes.end()}), (Lines{kNotTuned, kModeNotSet}));
    Line().Plug();
    Line().Reply("FA;", "FA00021300000;");
    LetTimeGoBy(2'000);
    EXPECT_EQ(Told(), "21.3000");
    EXPECT_EQ(Line().TakeSent().find("FA0"), std::string::npos);
    EXPECT_EQ(dialogs.boxes.size(), 3U);
}

TEST_F(LostRadioTest, ModeButtonFindsTheCableOut) {
    PullTheCable(kKenwood);
    ChangeMode("CW");
    EXPECT_EQ(dialogs.boxes,
              Lines{"message \"Error Changing Mode\" \"CW Serial port 1: Input/output error\" OK Exclamation"});
    Line().Plug();
    LetTimeGoBy(1'000);
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(LostRadioTest, BandThatCannotBeSavedClosesNoPort) {
    StartPolling("Kenwood");
    files.FailAt(1, "No space left on device");
    ReplyAndRead("FA00014200000;");
    EXPECT_TRUE(Line().isOpen);
    EXPECT_FALSE(State().portGone);
}

TEST_F(LostRadioTest, AnHourWithoutTheDeviceIsSilent) {
    PullTheCable(kNineDigits);
    LetTimeGoBy(3'600'000);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(Told(), kNoAnswer);
    Line().Plug();
    Line().Reply("FA;", "FA021300000;");
    LetTimeGoBy(11'000);
    EXPECT_EQ(Told(), "21.3000");
}

}  // namespace
}  // namespace tallyhut
