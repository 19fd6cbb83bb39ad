#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct RigCommandsTest : RigFixture {
    RigCommands& Commands() { return program->rigCommands; }
    void ChangeMode(std::string mode, float frequency = 0) { Commands().ChangeMode(frequency, mode); }
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

TEST_F(RigCommandsTest, SecondCallMeanwhileDoesNothing) {
    StartPolling("Kenwood");
    pump.OnCollect(2, [this] { ChangeFrequency(7.03F); });
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }),
              (Lines{"99 4D44323B", "304 464130303031343230303030303B"}));
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
    EXPECT_EQ(Line().written.back().bytes, "MD1;");
    mode.clear();
    EXPECT_EQ(WrittenDuring([this, &mode] { Commands().ChangeMode(5.3F, mode); }), Lines{});
    EXPECT_EQ(mode, "");
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

TEST_F(RigCommandsTest, FailureIsToldForModeAndForFrequencyAndStopsThePoll) {
    StartPolling("Kenwood");
    Line().Unplug();
    ChangeFrequency(14.2F);
    EXPECT_EQ(dialogs.boxes,
              (Lines{"message \"Error Changing Mode\" \"USB Serial port 1: Input/output error\" OK Exclamation",
                     "message \"Error Changing Frequency\" \"Serial port 1: Input/output error\" OK Exclamation"}));
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
    dialogs.boxes.clear();
    ChangeFrequency(14.2F);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(RigCommandsTest, NextTestPollsAgainAfterAFailure) {
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

TEST_F(RigCommandsTest, DrainWaitGivesUpAfterTwoSeconds) {
    StartPolling("Kenwood");
    Line().outputCount = 5;  // nothing leaves
    const Tick start = clock.TickMs();
    Commands().WaitOutputDrained();
    EXPECT_EQ(clock.TickMs() - start, 2'000U);
}

TEST_F(RigCommandsTest, DrainWaitEndsWithTheLastByte) {
    StartPolling("Kenwood");
    Line().outputCount = 5;
    pump.OnCollect(4, [this] { Line().outputCount = 0; });
    const Tick start = clock.TickMs();
    Commands().WaitOutputDrained();
    EXPECT_EQ(clock.TickMs() - start, 3U);
}

TEST_F(RigCommandsTest, EventsRunBeforeAndAfterAPauseButNotInIt) {
    StartPolling("Kenwood");
    const int before = pump.Collects();
    Commands().DelayMs(500);
    EXPECT_EQ(pump.Collects() - before, 2);
}

TEST_F(RigCommandsTest, PauseIsLeftOutWhereTheTickWraps) {
    StartPolling("Kenwood");
    constexpr Tick kWrap = Tick{1} << 32U;
    const std::vector<std::pair<Tick, Tick>> cases{
        {kWrap - 2'098, 0}, {kWrap - 1, 0}, {kWrap, 99}, {2 * kWrap - 2'099, 99}, {3 * kWrap - 50, 0}};
    for (const auto& [tick, passed] : cases) {
        clock.AdvanceTo(tick);
        Commands().DelayMs(99);
        EXPECT_EQ(clock.TickMs() - tick, passed) << tick;
    }
}

TEST_F(RigCommandsTest, RadioChosenDuringThePauseIsTheOneThatCounts) {
    StartPolling("Kenwood");
    pump.OnCollect(2, [this] { PickRig("None"); });
    EXPECT_EQ(WrittenDuring([this] { ChangeFrequency(14.2F); }), Lines{});
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
}

TEST_F(RigCommandsTest, EndTestDuringACommandIsTheEndOfThePoll) {
    StartPolling("Kenwood");
    pump.OnCollect(2, [this] { TheDesk().PostClick(Rig().Command2, kLeftButton); });
    ChangeFrequency(14.2F);
    EXPECT_FALSE(Rig().tmrGetData.Enabled());
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(RigCommandsTest, TestDuringACommandPollsWhenItIsDone) {
    StartPolling("Kenwood");
    pump.OnCollect(2, [this] { TheDesk().PostClick(Rig().Command1, kLeftButton); });
    const std::vector<std::string> written = WrittenDuring([this] { ChangeFrequency(14.2F); });
    EXPECT_EQ(std::ranges::count_if(written, [](const std::string& line) { return line.ends_with("46413B"); }), 0);
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
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

}  // namespace
}  // namespace tallyhut
