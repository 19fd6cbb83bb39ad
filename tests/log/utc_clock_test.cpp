#include "log/utc_clock.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kOnOffPath = "/contest/nsonoff.txt";

/// A machine five hours behind UTC that was four hours behind it in summer.
struct UtcClockTest : ProgramFixture {
    void StartInSummer() {
        stored.gUtcOffset = 4;
        clock.minutesToUtc = 240;
        clock.SetNow({2026, 11, 1, 1, 30, 0});
        Start();
        Click(Main().cmdLogOn);
    }
    void EndSummer() {
        const DateTime local = clock.Now();
        clock.minutesToUtc = 300;
        clock.SetNow(AddMinutes(local, -60));
    }
    void Tick(int seconds) {
        for (int passed = 0; passed < seconds; ++passed) {
            PassTime(1'000);
        }
    }
    std::string OnOff() const { return files.contents.at(kOnOffPath); }
    void Log(const std::string& call) {
        FillAll("88", "A", call, "72", "MDC");
        Focus(Main().txtSec);
        Press("Enter");
    }
    std::string LastMoment() {
        const Contact& last = program->log.Row(program->log.gContactCount());
        return last.Date + ' ' + last.Time;
    }
};

TEST_F(UtcClockTest, UtcGoesOnOverTheEndOfDaylightSavingTime) {
    StartInSummer();
    Tick(1'740);
    Log("W1XX");
    EXPECT_EQ(LastMoment(), "2026/11/01 05:59:00");
    EXPECT_EQ(Main().lblCurTime.Caption(), "1:59:00");
    EndSummer();
    Tick(60);
    EXPECT_EQ(Main().lblCurTime.Caption(), "1:00:00") << "the local clock has gone back";
    EXPECT_EQ(Main().lblutctime.Caption(), "06:00:00");
    Log("W2XX");
    EXPECT_EQ(LastMoment(), "2026/11/01 06:00:00");
}

TEST_F(UtcClockTest, OperatingTimeAndTimeOnTheBandGoOnOverTheEndOfDaylightSavingTime) {
    StartInSummer();
    Tick(600);
    ChooseMenu(Main().mnu20);
    Tick(600);
    EndSummer();
    Tick(60);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:21:00");
    EXPECT_EQ(Main().lbltimeon.Caption(), "00:11:00");
    Click(Main().cmdLogOn);
    EXPECT_EQ(program->preferences.gOpSeconds, 1'260);
}

TEST_F(UtcClockTest, TimeRecordsGoOnOverTheEndOfDaylightSavingTime) {
    StartInSummer();
    Tick(600);
    EndSummer();
    Tick(60);
    Click(Main().cmdLogOn);
    EXPECT_EQ(OnOff(), "1,\"11/1/2026\",\"05:30:00\",\"00:00:00\"\r\n0,\"11/1/2026\",\"05:41:00\",\"00:11:00\"\r\n");
    EXPECT_EQ(Dialog(), "Logged Off at 11/1/2026 05:41:00 Log On after 06:11:00");
}

TEST_F(UtcClockTest, RatesCountTheLastHourOverTheEndOfDaylightSavingTime) {
    StartInSummer();
    Log("W1XX");
    EndSummer();
    Tick(60);
    Log("W2XX");
    EXPECT_EQ(Main().lblAQSO60.Caption(), "2");
    Tick(1'800);
    Log("W3XX");
    EXPECT_EQ(Main().lblAQSO60.Caption(), "3");
    EXPECT_EQ(Main().lblAQSO20.Caption(), "3") << "one in 20 minutes, times 3";
}

TEST_F(UtcClockTest, OffsetThatTheOperatorGivesAfterwardsFitsTheMachineAsItIsThen) {
    StartInSummer();
    EndSummer();
    Tick(1);
    EXPECT_EQ(Main().lblutctime.Caption(), "05:30:01");
    program->preferences.gUtcOffset = 5;  // as Done of the station form does
    Tick(1);
    EXPECT_EQ(Main().lblutctime.Caption(), "05:30:02");
    Log("W1XX");
    EXPECT_EQ(LastMoment(), "2026/11/01 05:30:02");
}

TEST_F(UtcClockTest, OffsetThatTheOperatorKeepsGoesOnWithTheMachinesChange) {
    StartInSummer();
    EndSummer();
    Tick(1);
    program->preferences.gUtcOffset = 4;
    Tick(1);
    EXPECT_EQ(Main().lblutctime.Caption(), "05:30:02");
}

TEST_F(UtcClockTest, StationAtGreenwichHasASummerToo) {
    stored.gUtcOffset = 0;
    clock.minutesToUtc = 0;
    Start();
    clock.minutesToUtc = -60;
    clock.SetNow({2026, 11, 7, 23, 0, 0});
    Tick(1);
    EXPECT_EQ(Main().lblutctime.Caption(), "22:00:01");
}

TEST_F(UtcClockTest, ClockSetByHandMovesUtcWithIt) {
    stored.gUtcOffset = 5;
    clock.minutesToUtc = 300;
    Start();
    clock.SetNow({2026, 11, 7, 12, 0, 0});
    Tick(1);
    EXPECT_EQ(Main().lblutctime.Caption(), "17:00:01") << "the operator has put it right";
}

TEST_F(UtcClockTest, OperatingTimeCountsWhatHasPassedWhicheverWayTheClockIsSet) {
    Start();
    Click(Main().cmdLogOn);
    Tick(60);
    clock.SetNow({2026, 11, 7, 12, 0, 0});
    Tick(60);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:02:00");
    clock.SetNow({2027, 1, 1, 0, 0, 0});
    Tick(60);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:03:00");
    EXPECT_EQ(Main().lbltimeon.Caption(), "00:03:00");
}

TEST_F(UtcClockTest, BandThatBeginsRightBehindAChangeOfTheClockCountsFromThere) {
    Start();
    Click(Main().cmdLogOn);
    Tick(60);
    clock.SetNow({2026, 11, 7, 12, 0, 0});
    ChooseMenu(Main().mnu20);
    Tick(5);
    EXPECT_EQ(Main().lbltimeon.Caption(), "00:00:05");
    EXPECT_EQ(Main().lblttrack.Caption(), "00:01:05");
}

TEST_F(UtcClockTest, TimeAsleepDoesNotCount) {
    Start();
    Click(Main().cmdLogOn);
    Tick(60);
    clock.SetNow(AddMinutes(clock.Now(), 120));  // the tick has stood still meanwhile
    Tick(60);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:02:00");
}

TEST_F(UtcClockTest, TickThatComesLateLosesNothing) {
    Start();
    Click(Main().cmdLogOn);
    PassTime(3'600'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "01:00:00");
}

}  // namespace
}  // namespace tallyhut
