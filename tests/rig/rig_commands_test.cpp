#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct RigCommandsTest : RigFixture {
    RigCommands& Commands() { return program->rigCommands; }
};

/// What goes out for 14.2 MHz, where the plan has phone: the milliseconds that have passed and the bytes.
struct TuneCase {
    std::string_view rig;
    Lines written;
    Tick passed;  ///< until it is over
};

TEST_F(RigCommandsTest, EachRadioGetsModeAndFrequencyWithItsPauses) {
    const std::vector<TuneCase> cases{
        {"Elecraft", {"99 4D44323B", "1304 464130303031343230303030303B"}, 1304},
        {"Icom", {"99 FEFE64E00601FD", "239 FEFE64E0050000201400FD"}, 239},
        {"Icom 735", {"239 FEFE64E0050000201400FD"}, 239},
        {"Kenwood", {"99 4D44323B", "304 464130303031343230303030303B"}, 304},
        {"Kenwood 2", {"99 4D44323B", "304 464130303031343230303030303B"}, 304},
        {"Ten Tec Omni VI", {"99 FEFE04E00601FD", "459 FEFE04E0050000201400FD"}, 459},
        {"Ten Tec Orion", {"304 2A414631342E320D"}, 304},
        {"Ten Tec Fnt Pnl", {"304 2A4100D8ACC00D"}, 304},
        {"Ten Tec Pegasus", {}, 304},
        {"Yaesu", {"99 0100000007", "304 0142000001"}, 304},
        {"Yaesu 757 GX II", {"99 000000010C", "304 000042010A"}, 304},
        {"Yaesu 890", {"99 000000010C", "304 000042010A"}, 304},
        {"Yaesu 920", {"99 000000010C", "304 000042010A"}, 304},
        {"Yaesu 990", {"99 000000010C", "304 000042010A"}, 304},
        {"Yaesu 1000 D", {"99 000000010C", "304 000042010A"}, 304},
        {"Yaesu 1000", {"99 000000010C", "109 000042010A"}, 109},
        {"Yaesu FTdx9000", {"99 4D4430323B", "304 464131343230303030303B"}, 304},
        {"Other", {}, 99},
        {"Yaesu FTdx10", {"99 4D4430323B", "304 46413031343230303030303B"}, 304},
    };
    for (const TuneCase& one : cases) {
        SCOPED_TRACE(one.rig);
        StartPolling(one.rig);
        const Tick start = clock.TickMs();
        EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }), one.written);
        EXPECT_EQ(clock.TickMs() - start, one.passed);
        EXPECT_TRUE(Rig().tmrGetData.Enabled());
        EXPECT_TRUE(dialogs.boxes.empty());
    }
}

TEST_F(RigCommandsTest, NothingWithoutAPoll) {
    Start();
    PickRig("Kenwood");
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }), Lines{});
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, PollRestsMeanwhileAndItsFlagsStay) {
    StartPolling("Elecraft");
    Line().Receive("FA00014200000;");
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }).size(), 2U);  // five ticks would have passed
    EXPECT_EQ(State().ReadPhase, 1);
    EXPECT_EQ(State().RigFrequency, 0);  // what was pending has been dropped
    PassTime(kMediumTick - 1);
    EXPECT_EQ(State().ReadPhase, 1);
    PassTime(1);
    EXPECT_EQ(State().ReadPhase, 0);
}

TEST_F(RigCommandsTest, OutsideThePlanOnlyTheFrequencyIsSent) {
    for (const float frequency : {18.1F, 14.15F, 1.85F}) {
        StartPolling("Kenwood");
        EXPECT_EQ(WrittenDuring([this, frequency] { ChangeFrequency(frequency); }).size(), 1U) << frequency;
        EXPECT_EQ(clock.TickMs() % 1000, 205U) << frequency;
        clock.AdvanceTo((clock.TickMs() / 1000 + 1) * 1000);
    }
}

TEST_F(RigCommandsTest, MissingPlanSendsTheFrequencyAlone) {
    files.contents.erase("/contest/BandPlan.txt");
    StartPolling("Kenwood");
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }), (Lines{"205 464130303031343230303030303B"}));
}

TEST_F(RigCommandsTest, KenwoodCommandsTheVfoOfItsString) {
    StartPolling("Kenwood");
    Rig().txtFreq.SetText("FB;");
    ChangeFrequency(7.0251F);
    EXPECT_EQ(Line().written.back().bytes, "FB00007025100;");
}

TEST_F(RigCommandsTest, SecondKenwoodCommandsTheVfoItIsOn) {
    StartPolling("Kenwood 2");
    ChangeFrequency(7.03F);
    EXPECT_EQ(Line().written.back().bytes, "FA00007030000;");
    NextTick();  // the reading of before
    NextTick();
    ReplyAndRead("IF00014200000     +000000000031000000;");
    ASSERT_EQ(State().VfoDigit, 1);
    ChangeFrequency(7.03F);
    EXPECT_EQ(Line().written.back().bytes, "FB00007030000;");
}

TEST_F(RigCommandsTest, AddressIsThatOfTheFrequencyString) {
    StartPolling("Icom");
    Rig().txtFreq.SetText("FE FE 3A E0 03 FD");
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.05F); }),
              (Lines{"99 FEFE3AE00603FD", "239 FEFE3AE0050000051400FD"}));
}

TEST_F(RigCommandsTest, FrontPanelLeavesZeroInTheCallersVariable) {
    StartPolling("Ten Tec Fnt Pnl");
    float frequency = 14.2F;
    Commands().ChangeFrequency(frequency);
    EXPECT_EQ(frequency, 0);
}

TEST_F(RigCommandsTest, PegasusGetsAFile) {
    environment.variables["HOME"] = "/home/operator";
    files.AddFolder("/home/operator/.wine/drive_c/Pegasus");
    StartPolling("Ten Tec Pegasus");
    State().RigMode = "CW";
    ChangeFrequency(14.2F);
    EXPECT_EQ(files.contents.at("/home/operator/.wine/drive_c/Pegasus/PEGASUS.IN"), "14.2\r\nCW\r\n");
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, PegasusWithoutItsFolderIsSilent) {
    StartPolling("Ten Tec Pegasus");
    ChangeFrequency(14.2F);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, ModeAloneGoesOutBetweenTwoTicks) {
    StartPolling("Kenwood");
    EXPECT_EQ(WrittenDuring([this] { ChangeMode("LSB"); }), (Lines{"99 4D44313B"}));
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, EmptyModeIsThatOfThePlan) {
    StartPolling("Kenwood");
    std::string mode;
    Commands().ChangeMode(3.7F, mode);
    EXPECT_EQ(mode, "LSB");
    FinishCommands();
    EXPECT_EQ(Line().written.back().bytes, "MD1;");
    mode.clear();
    Commands().ChangeMode(5.3F, mode);
    EXPECT_EQ(mode, "");
    EXPECT_FALSE(State().commanding);
}

TEST_F(RigCommandsTest, ModeThatTheRadioHasNotIsNotSent) {
    StartPolling("Kenwood");
    EXPECT_EQ(WrittenDuring([this] { ChangeMode("CW-R"); }), Lines{});
    EXPECT_EQ(WrittenDuring([this] { ChangeMode("nonsense"); }), Lines{});
}

TEST_F(RigCommandsTest, WithoutARadioNoModeIsSetAndNoTimePasses) {
    Start();
    const Tick start = clock.TickMs();
    ChangeMode("CW");
    EXPECT_EQ(clock.TickMs(), start);
}

TEST_F(RigCommandsTest, CableThatIsOutIsToldOnceAndThePollGoesOn) {
    StartPolling("Kenwood");
    Line().Unplug();
    ChangeFrequency(14.2F);
    EXPECT_EQ(dialogs.boxes, Lines{"message \"Error Changing Frequency\" \"Serial port 1: Input/output error\" OK "
                                   "Exclamation"});
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    Line().Plug();
    LetTimeGoBy(1'250);
    EXPECT_EQ(Line().TakeSent(), "FA;MD;FA;MD;") << "before the cable was out, and since it is in";
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(RigCommandsTest, StringWithoutAnAddressEndsThePoll) {
    StartPolling("Icom");
    AskFrequency(14.2F);
    Rig().txtFreq.SetText("FE FE xx");
    FinishCommands();
    ASSERT_EQ(dialogs.boxes.size(), 2U);
    EXPECT_TRUE(dialogs.boxes[0].starts_with("message \"Error Changing Mode\""));
    EXPECT_TRUE(dialogs.boxes[1].starts_with("message \"Error Changing Frequency\""));
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, NextTestTunesAgainAfterAFailure) {
    StartPolling("Kenwood");
    Line().Unplug();
    ChangeFrequency(14.2F);
    Line().Plug();
    Click(Rig().Command1);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }).size(), 2U);
}

TEST_F(RigCommandsTest, FrequencyThatIsNoneIsTold) {
    StartPolling("Kenwood");
    ChangeFrequency(-0.5F);
    EXPECT_EQ(dialogs.boxes,
              (Lines{"message \"Error Changing Frequency\" \"No radio can be tuned to -0.5 MHz.\" OK Exclamation"}));
}

TEST_F(RigCommandsTest, NumberBeyondTheCommandsIsToldAndThePollGoesOn) {
    StartPolling("Icom");
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14'200); }), Lines{});
    EXPECT_EQ(dialogs.boxes,
              (Lines{"message \"Error Changing Frequency\" \"14200 MHz is too high for the commands of this radio.\" "
                     "OK Exclamation"}));
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    EXPECT_FALSE(WrittenDuring([this] { ChangeFrequency(14.2F); }).empty());
}

/// In the long pause of a command: the mode for 14.2 MHz has gone out, and 804 ms are left to the frequency.
struct RigPauseTest : RigFixture {
    void StartCommand(std::string_view rig = "Elecraft") {
        StartPolling(rig);
        Line().TakeSent();
        AskFrequency(14.2F);
        LetTimeGoBy(500);
        ASSERT_EQ(Line().TakeSent(), "MD2;");
    }
    static constexpr Tick kLeft = 804;
    static constexpr const char* kTuned = "FA00014200000;";

    std::string SentInTheEnd() {
        FinishCommands();
        return Line().TakeSent();
    }
    /// No step of the command is left, and the poll is off.
    void ExpectStopped() {
        EXPECT_FALSE(State().commanding);
        EXPECT_FALSE(Rig().tmrGetData.Enabled());
        EXPECT_FALSE(Rig().tmrCommand.Enabled());
        LetTimeGoBy(5'000);
        EXPECT_EQ(Line().TakeSent(), "");
        EXPECT_TRUE(dialogs.boxes.empty());
    }
};

TEST_F(RigPauseTest, CommandComesBackAtOnce) {
    StartPolling("Elecraft");
    const Tick start = clock.TickMs();
    AskFrequency(14.2F);
    AskMode("CW");
    EXPECT_EQ(clock.TickMs(), start);
}

TEST_F(RigPauseTest, KeyActsAtOnce) {
    StartCommand();
    Focus(Main().txtNum);
    const Tick before = clock.TickMs();
    Type("88aw1xx");
    EXPECT_EQ(Fields(), "88|A|W1XX||");
    EXPECT_EQ(clock.TickMs(), before);
    EXPECT_TRUE(State().commanding);
    EXPECT_EQ(SentInTheEnd(), kTuned);
}

TEST_F(RigPauseTest, ContactIsLogged) {
    StartCommand();
    program->time.gTimeOn = 1;
    FillAll("88", "A", "W1XX", "72", "MDC");
    Focus(Main().txtSec);
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
    EXPECT_EQ(SentInTheEnd(), kTuned);
}

TEST_F(RigPauseTest, TimersOfOtherFormsGoOn) {
    StartCommand();
    const std::string before = Main().lblutctime.Caption();
    LetTimeGoBy(kLeft - 1);
    EXPECT_NE(Main().lblutctime.Caption(), before);
    EXPECT_TRUE(State().commanding);
}

TEST_F(RigPauseTest, NoPollTickFallsBetweenTheSteps) {
    StartCommand();
    Click(Rig().optPollFast);
    Click(Rig().Command1);  // polls twenty times a second from now on
    EXPECT_EQ(SentInTheEnd(), kTuned);
    LetTimeGoBy(49);
    EXPECT_EQ(Line().TakeSent(), "");
    LetTimeGoBy(51);
    EXPECT_EQ(Line().TakeSent(), "FA;MD;");
}

TEST_F(RigPauseTest, NoPollTickFallsIntoThePauseOfAModeAlone) {
    StartPolling("Kenwood");
    NextTick();  // the next one asks
    Line().TakeSent();
    LetTimeGoBy(kMediumTick - 50);
    AskMode("LSB");
    EXPECT_EQ(WrittenDuring([this] { FinishCommands(); }), Lines{"99 4D44313B"});
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    LetTimeGoBy(kMediumTick - 49);
    EXPECT_EQ(Line().TakeSent(), "MD1;FA;MD;");
}

TEST_F(RigPauseTest, CommandAskedForMeanwhileWaitsItsTurn) {
    StartCommand();
    AskFrequency(7.03F);
    EXPECT_EQ(WrittenDuring([this] { FinishCommands(); }),
              (Lines{"804 464130303031343230303030303B", "903 4D44333B", "2108 464130303030373033303030303B"}));
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, NewestReplacesTheOneThatWaits) {
    StartCommand();
    AskFrequency(7.03F);
    AskMode("LSB");
    AskFrequency(3.55F);
    EXPECT_EQ(SentInTheEnd(), "FA00014200000;MD3;FA00003550000;");
    StartCommand();
    AskFrequency(7.03F);
    AskMode("LSB");
    EXPECT_EQ(SentInTheEnd(), "FA00014200000;MD1;");
}

TEST_F(RigPauseTest, FrequencyThatNoCommandHoldsReplacesNothing) {
    StartPolling("Icom");
    Line().TakeSent();
    AskFrequency(14.2F);
    AskFrequency(7.03F);
    AskFrequency(14'200);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    FinishCommands();
    EXPECT_EQ(SentHex(), "FEFE64E00601FDFEFE64E0050000201400FDFEFE64E00603FDFEFE64E0050000030700FD");
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(RigPauseTest, ModeThatThePlanHasNotReplacesNothing) {
    StartCommand();
    AskFrequency(7.03F);
    AskMode("", 5.3F);
    EXPECT_EQ(SentInTheEnd(), "FA00014200000;MD3;FA00007030000;");
}

TEST_F(RigPauseTest, EndTestEndsTheCommandAndTheOneThatWaits) {
    StartCommand();
    AskFrequency(7.03F);
    Click(Rig().Command2);
    EXPECT_FALSE(Line().isOpen);
    ExpectStopped();
}

TEST_F(RigPauseTest, AnotherRadioEndsTheCommand) {
    StartCommand();
    PickRig("Icom");
    ExpectStopped();
}

TEST_F(RigPauseTest, TestAfterEndTestPollsAtOnce) {
    StartCommand();
    Click(Rig().Command2);
    Click(Rig().Command1);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
    NextTick(2);
    EXPECT_NE(Line().TakeSent().find("FA;MD;"), std::string::npos);
    AskFrequency(7.03F);
    EXPECT_EQ(SentInTheEnd(), "MD3;FA00007030000;");
}

TEST_F(RigPauseTest, TestOpensThePortAnewAndTheCommandGoesOn) {
    StartCommand();
    Click(Rig().Command1);
    EXPECT_TRUE(Line().isOpen);
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
    EXPECT_EQ(WrittenDuring([this] { FinishCommands(); }), Lines{"804 464130303031343230303030303B"});
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, TestDuringTheCommandOfAModeAlonePollsBehindIt) {
    Start();
    PickRig("Kenwood");
    Click(Rig().Command1);
    Click(Rig().Command2);
    AskMode("LSB");
    Line().TakeSent();
    Click(Rig().Command1);
    EXPECT_EQ(SentInTheEnd(), "MD1;");
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, TestThatFindsThePortGoneIsTheOnlyOneToTell) {
    StartCommand();
    AskFrequency(7.03F);
    Line().Unplug();
    dialogs.onShow = [this] { LetTimeGoBy(5'000); };  // events run while the box stands
    Click(Rig().Command1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_TRUE(dialogs.boxes.front().starts_with("message \"Invalid Comm Settings.\""));
    dialogs.boxes.clear();
    ExpectStopped();
}

TEST_F(RigPauseTest, PulledCableIsToldOnceAndForgetsTheOneThatWaits) {
    StartCommand();
    AskFrequency(7.03F);
    Line().Unplug();
    LetTimeGoBy(kLeft);
    EXPECT_EQ(dialogs.boxes, Lines{"message \"Error Changing Frequency\" \"Serial port 1: Input/output error\" OK "
                                   "Exclamation"});
    LetTimeGoBy(5'000);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_FALSE(State().commanding);
    EXPECT_EQ(Line().TakeSent(), "");
}

TEST_F(RigPauseTest, BoxOfAFailureFindsTheCommandOver) {
    StartCommand();
    Line().Unplug();
    dialogs.onShow = [this] {
        EXPECT_FALSE(State().commanding);
        EXPECT_TRUE(Rig().tmrGetData.Enabled());
        dialogs.onShow = {};
        LetTimeGoBy(5'000);
        AskFrequency(7.03F);
    };
    LetTimeGoBy(kLeft);
    EXPECT_EQ(dialogs.boxes.size(), 2U) << "one of each command";
}

TEST_F(RigPauseTest, ModeAloneThatFailsLeavesThePoll) {
    StartPolling("Kenwood");
    AskMode("LSB");
    AskMode("CW");
    Line().Unplug();
    dialogs.onShow = [this] { EXPECT_FALSE(State().commanding); };
    FinishCommands();
    LetTimeGoBy(5'000);
    EXPECT_EQ(dialogs.boxes,
              Lines{"message \"Error Changing Mode\" \"LSB Serial port 1: Input/output error\" OK Exclamation"});
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, CloseBoxOfTheRadiosFormHidesItAndTheCommandGoesOn) {
    StartCommand();
    Rig().RequestClose();
    EXPECT_FALSE(Rig().IsVisible());
    EXPECT_EQ(SentInTheEnd(), kTuned);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, BandOfTheMenuIsChosenAtOnce) {
    StartCommand();
    ChooseMenu(Main().mnu15);
    EXPECT_EQ(program->preferences.gBand, "15");
    EXPECT_EQ(Main().Label30.Caption(), "15");
    EXPECT_EQ(SentInTheEnd(), kTuned);
}

TEST_F(RigPauseTest, SettingsReadAnewCountForWhatIsStillToBeSent) {
    StartCommand();
    files.Put(kRigSettingsPath,
              "\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FB;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n");
    program->rigSetup.RigControlfrm_Load();
    EXPECT_EQ(SentInTheEnd(), "FB00014200000;");
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(RigPauseTest, ExitEndsTheProgramAndNothingMoreIsSent) {
    StartCommand();
    AskFrequency(7.03F);
    EXPECT_EQ(EndStatusOf([this] { ChooseMenu(Main().mnuExit); }), 0);
    program.reset();
    EXPECT_FALSE(Line().isOpen);
    EXPECT_EQ(Line().TakeSent(), "");
}

TEST_F(RigPauseTest, CloseBoxOfTheProgramSaysFarewellAndNothingMore) {
    StartPolling("Yaesu");
    AskFrequency(14.2F);
    LetTimeGoBy(100);
    AskFrequency(7.03F);
    Line().TakeSent();
    program->RequestClose();
    EXPECT_EQ(EndStatusOf([this] { TheDesk().RunPending(); }), 0);
    EXPECT_FALSE(State().commanding);
    EXPECT_FALSE(State().polls);
    EXPECT_EQ(SentHex(), "0000000080");
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(RigPauseTest, ProgramMayEndWhileAFailureIsTold) {
    for (const Tick until : {Tick{99}, Tick{1'304}}) {  // of the mode, of the frequency
        StartPolling("Elecraft");
        AskFrequency(14.2F);
        LetTimeGoBy(until - 1);
        Line().TakeSent();
        Line().Unplug();
        dialogs.onShow = [this] { pump.EndProgram(0); };
        EXPECT_EQ(EndStatusOf([this] { LetTimeGoBy(1); }), 0);
        dialogs.onShow = {};
        program.reset();
        EXPECT_FALSE(Line().isOpen);
        EXPECT_EQ(Line().TakeSent(), "");
        Line().Plug();
    }
}

struct RigDrainTest : RigFixture {
    std::vector<std::string> WrittenForAMode(const std::function<void()>& meanwhile) {
        StartPolling("Kenwood");
        Line().outputCount = 5;
        return WrittenDuring([&] {
            AskMode("LSB");
            meanwhile();
            FinishCommands();
        });
    }
};

TEST_F(RigDrainTest, WaitGivesUpAfterTwoSeconds) {
    EXPECT_EQ(WrittenForAMode([] {}), Lines{"2099 4D44313B"});
    EXPECT_EQ(clock.TickMs() % 10'000, 4'099U);  // another two seconds behind the command
}

TEST_F(RigDrainTest, WaitEndsWithTheLastByte) {
    EXPECT_EQ(WrittenForAMode([this] {
                  LetTimeGoBy(7);
                  Line().LetGo();
              }),
              Lines{"107 4D44313B"});
}

TEST_F(RigDrainTest, CableThatIsPulledEndsTheWait) {
    EXPECT_EQ(WrittenForAMode([this] { Line().Unplug(); }), Lines{});
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(RigCommandsTest, PauseIsLeftOutWhereTheTickWraps) {
    StartPolling("Kenwood");
    constexpr Tick kWrap = Tick{1} << 32U;
    const std::vector<std::pair<Tick, Tick>> cases{
        {kWrap - 2'098, 0}, {kWrap - 1, 0}, {kWrap, 99}, {2 * kWrap - 2'099, 99}, {3 * kWrap - 50, 0}};
    for (const auto& [tick, passed] : cases) {
        clock.AdvanceTo(tick);
        ChangeMode("LSB");
        EXPECT_EQ(clock.TickMs() - tick, passed) << tick;
    }
}

}  // namespace
}  // namespace tallyhut
