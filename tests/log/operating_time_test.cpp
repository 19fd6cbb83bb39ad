#include "log/operating_time.h"

#include "tests/log/program_fixture.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr const char* kOnOffPath = "/contest/nsonoff.txt";

struct OperatingTimeTest : ProgramFixture {
    std::string OnOff() const { return files.contents.contains(kOnOffPath) ? files.contents.at(kOnOffPath) : ""; }
    void Tick(Tick milliseconds) {
        for (::tallyhut::Tick passed = 0; passed < milliseconds; passed += 1'000) {
            PassTime(1'000);
        }
    }
};

TEST_F(OperatingTimeTest, TimeOnAndTimeOffAreRecordedAndTheReturnIsTold) {
    clock.SetNow({2026, 11, 7, 21, 0, 4});
    Start();
    Click(Main().cmdLogOn);
    EXPECT_EQ(Main().cmdLogOn.Caption(), "&Log \"Time Off\"");
    EXPECT_EQ(OnOff(), "1,\"11/7/2026\",\"21:00:04\",\"00:00:00\"\r\n");
    Tick(600'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:10:00");
    Click(Main().cmdLogOn);
    EXPECT_EQ(Main().cmdLogOn.Caption(), "&Log \"Time On\"");
    EXPECT_EQ(Dialog(), "Logged Off at 11/7/2026 21:10:04 Log On after 21:40:04");
    EXPECT_EQ(OnOff(), "1,\"11/7/2026\",\"21:00:04\",\"00:00:00\"\r\n0,\"11/7/2026\",\"21:10:04\",\"00:10:00\"\r\n");
    EXPECT_EQ(program->preferences.gOpSeconds, 600);
    EXPECT_NE(files.contents.at(kPreferencesPath).find("\r\n600\r\n"), std::string::npos);
}

TEST_F(OperatingTimeTest, WhetherTheClockRunsIsShownByAWordAndAColour) {
    Start();
    const Label& state = Main().lblClockState;
    EXPECT_EQ(state.Caption(), "Stopped");
    EXPECT_EQ(state.State().backColor, kButtonFace);
    Click(Main().cmdLogOn);
    EXPECT_EQ(state.Caption(), "Running");
    EXPECT_EQ(state.State().backColor, 0x008000);
    Click(Main().cmdLogOn);
    EXPECT_EQ(state.Caption(), "Stopped");
    EXPECT_EQ(state.State().backColor, kButtonFace);
}

TEST_F(OperatingTimeTest, TheReturnMayBeOnTheNextDayWhileTheDateStays) {
    clock.SetNow({2026, 11, 7, 23, 45, 0});
    Start();
    Click(Main().cmdLogOn);
    Click(Main().cmdLogOn);
    EXPECT_EQ(Dialog(), "Logged Off at 11/7/2026 23:45:00 Log On after 00:15:00");
}

TEST_F(OperatingTimeTest, ABandChangeRestartsTheTimeOnTheBandAlone) {
    Start();
    Click(Main().cmdLogOn);
    Tick(60'000);
    ChooseMenu(Main().mnu20);
    Tick(5'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:01:05");
    EXPECT_EQ(Main().lbltimeon.Caption(), "00:00:05");
}

TEST_F(OperatingTimeTest, ACommitWithTheClockOffRecordsTheStartBeforeTheContact) {
    Start();
    Type("88aw1xx72mdc\r");
    ASSERT_EQ(files.appends.size(), 2U);
    EXPECT_EQ(files.appends[0].path, kOnOffPath);
    EXPECT_EQ(files.appends[0].record.front(), '1');
    EXPECT_EQ(files.appends[1].path, kLogPath);
    EXPECT_EQ(program->time.gTimeOn, 1);
}

TEST_F(OperatingTimeTest, HoursWrapAfterNinetyNine) {
    EXPECT_EQ(DurationText(360'000), "00:00:00");
    EXPECT_EQ(DurationText(359'999), "99:59:59");
    EXPECT_EQ(DurationText(11'564), "03:12:44");
    EXPECT_EQ(DurationText(0), "00:00:00");
}

TEST_F(OperatingTimeTest, TheClockTakesAFractionOfAnHourThatTheRecordRounds) {
    clock.minutesToUtc = -210;
    stored.gUtcOffset = -3.5F;
    clock.SetNow({2026, 11, 7, 12, 0, 0});
    Start();
    Click(Main().cmdLogOn);
    Tick(1'000);
    EXPECT_EQ(Main().lblutctime.Caption(), "08:30:01");
    EXPECT_EQ(OnOff(), "1,\"11/7/2026\",\"08:00:00\",\"00:00:00\"\r\n");
}

TEST_F(OperatingTimeTest, LocalTimeStandsWithoutItsHalfOfTheDayBesideIt) {
    clock.SetNow({2026, 11, 7, 16, 4, 32});
    Start();
    Tick(1'000);
    EXPECT_EQ(Main().lblCurTime.Caption(), "4:04:33");
    EXPECT_EQ(Main().Label16.Caption(), "PM");
}

TEST_F(OperatingTimeTest, StoredSecondsGoOnAtTheFirstTickAfterTimeOn) {
    stored.gOpSeconds = 3'600;
    Start();
    Tick(1'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:00:00");
    Click(Main().cmdLogOn);
    Tick(1'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "01:00:01");
}

TEST_F(OperatingTimeTest, ATimeOffBeforeTheFirstTickLosesNothing) {
    stored.gOpSeconds = 3'600;
    Start();
    Click(Main().cmdLogOn);
    Click(Main().cmdLogOn);
    EXPECT_EQ(program->preferences.gOpSeconds, 3'600);
}

TEST_F(OperatingTimeTest, AClockThatIsSetCountsWhatHasPassed) {
    Start();
    Click(Main().cmdLogOn);
    Tick(10'000);
    clock.SetNow({2026, 11, 7, 21, 0, 0});
    Tick(1'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:00:11");
    clock.SetNow({2026, 11, 8, 3, 0, 0});
    Tick(1'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:00:12");
    EXPECT_EQ(Main().lbltimeon.Caption(), "00:00:12");
}

TEST_F(OperatingTimeTest, TimeRunsOverTheEndOfTheYear) {
    clock.SetNow({2026, 12, 31, 23, 59, 58});
    Start();
    Click(Main().cmdLogOn);
    Tick(4'000);
    EXPECT_EQ(Main().lblttrack.Caption(), "00:00:04");
}

TEST_F(OperatingTimeTest, TheFocusGoesToTheFirstFieldAtOnAndOff) {
    StartInMode(2);
    Focus(Main().txtSec);
    Click(Main().cmdLogOn);
    EXPECT_EQ(FocusedField(), "txtCall");
}

TEST_F(OperatingTimeTest, ARecordThatCannotBeWrittenIsToldAndTheContestGoesOn) {
    Start();
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(EndStatusOf([this] { Click(Main().cmdLogOn); }), std::nullopt);
    EXPECT_NE(dialogs.boxes.back().find("/contest/nsonoff.txt: No space left on device"), std::string::npos);
}

}  // namespace
}  // namespace tallyhut
