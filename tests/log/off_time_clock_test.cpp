#include "log/off_time_clock.h"

#include "tests/log/editing_fixture.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Tick kMinute = 60'000;
constexpr const char* kList = "\"MDC\",\"Maryland-DC\",\"3\",\"\",\"\",\"MD\",291,\"\",\"\",\"\"\r\n";

/// Contacts in each minute before 21:00 of November 8, so many of them.
std::vector<Contact> UpTo21(int minutes) {
    std::vector<Contact> contacts = ManyContacts(minutes);
    for (int n = 1; n <= minutes; ++n) {
        const DateTime at = AddSeconds({2026, 11, 8, 21, 0, 0}, -60 * (minutes + 1 - n));
        contacts[static_cast<std::size_t>(n - 1)].Date = FormatDateTime(at, "yyyy/mm/dd");
        contacts[static_cast<std::size_t>(n - 1)].Time = FormatDateTime(at, "hh:mm:ss");
    }
    return contacts;
}

struct OffTimeClockTest : EditingFixture {
    OffTimeClockTest() { clock.SetNow({2026, 11, 8, 21, 0, 0}); }

    /// With a list of sections, and so with the clock.
    void StartWithClock(const std::vector<Contact>& contacts = {}) {
        files.Put("/contest/Sections.txt", kList);
        StartOnDesk(contacts);
        program->time.gTimeOn = 1;  // else each key reminds of it by a beep
        dialogs.beeps = 0;
    }
    void PassMinutes(int minutes) {
        for (int i = 0; i < minutes; ++i) {
            PassTime(kMinute);
        }
    }
    void LogOne(const std::string& call) {
        Type("88a" + call + "72MDC");
        Press("Enter");
    }
    /// "21:04|00:12|Silence, off at 21:31"; empty while the clock is not shown.
    std::string Clock() {
        EXPECT_EQ(Main().lblLeft.IsShown(), Main().mnuOffTime.Checked());
        for (const Label* label : {&Main().lblLeftCaption, &Main().lblOffCaption, &Main().lblOff}) {
            EXPECT_EQ(label->IsShown(), Main().lblLeft.IsShown()) << label->name;
        }
        return !Main().lblLeft.IsShown()
                   ? ""
                   : Main().lblLeft.Caption() + '|' + Main().lblOff.Caption() + '|' + Main().lblOffCaption.Caption();
    }
    bool IsRed() { return Main().lblLeft.State().foreColor == kRed; }
    std::string Stored() { return settings.Get("Machine", "OffTimeClock"); }
};

TEST_F(OffTimeClockTest, IsShownWhereTheContestHasAListOfItsOwn) {
    StartWithClock();
    EXPECT_EQ(Clock(), "24:00||Silence");
}

TEST_F(OffTimeClockTest, IsNotShownWithoutOne) {
    StartOnDesk(UpTo21(3));
    PassMinutes(2);
    EXPECT_EQ(Clock(), "");
    EXPECT_EQ(Main().lblLeft.Caption(), "");
}

TEST_F(OffTimeClockTest, TheMenuSwitchesItAndTheChoiceIsOfTheMachine) {
    StartOnDesk(UpTo21(3));
    ChooseMenu(Main().mnuOffTime);
    EXPECT_EQ(Clock(), "23:57||Silence");
    EXPECT_EQ(Stored(), "1");
    StartOnDesk(UpTo21(3));
    EXPECT_EQ(Clock(), "23:57||Silence") << "in the next run";
    ChooseMenu(Main().mnuOffTime);
    EXPECT_EQ(Clock(), "");
    EXPECT_EQ(Stored(), "0");
    StartWithClock();
    EXPECT_EQ(Clock(), "") << "with a list too";
}

TEST_F(OffTimeClockTest, AChoiceThatCannotBeStoredCountsAndIsTold) {
    StartOnDesk();
    settings.failure = "no room";
    ChooseMenu(Main().mnuOffTime);
    EXPECT_EQ(Clock(), "24:00||Silence");
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Tallyhut Log\" \"no room\" OK Exclamation"});
}

TEST_F(OffTimeClockTest, AListPutInForceSwitchesItOnWhereNothingIsChosen) {
    StartOnDesk();
    files.Put("/contest/Sections.txt", kList);
    program->logPart.sectionChoice.TakeFromFolder();
    PassTime(1'000);
    EXPECT_EQ(Clock(), "24:00||Silence");
    files.Remove("/contest/Sections.txt");
    program->logPart.sectionChoice.TakeFromFolder();
    PassTime(1'000);
    EXPECT_EQ(Clock(), "");
}

TEST_F(OffTimeClockTest, SilenceIsToldByTheMinuteUntilItIsOff) {
    StartWithClock();
    LogOne("W1XX");
    EXPECT_EQ(Clock(), "23:59||Silence");
    PassMinutes(1);
    EXPECT_EQ(Clock(), "23:59||Silence");
    PassMinutes(1);
    EXPECT_EQ(Clock(), "23:58|00:01|Silence, off at 21:31");
    PassMinutes(28);
    EXPECT_EQ(Clock(), "23:30|00:29|Silence, off at 21:31");
    PassMinutes(1);
    EXPECT_EQ(Clock(), "23:59|00:30|Off time");
    PassMinutes(60);
    EXPECT_EQ(Clock(), "23:59|01:30|Off time");
    LogOne("W2XX");
    EXPECT_EQ(Clock(), "23:58||Silence");
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(OffTimeClockTest, AnOffTimeMayBeginOnTheNextDay) {
    clock.SetNow({2026, 11, 8, 23, 50, 0});
    StartWithClock();
    LogOne("W1XX");
    PassMinutes(2);
    EXPECT_EQ(Clock(), "23:58|00:01|Silence, off at 00:21");
}

TEST_F(OffTimeClockTest, ContactsAreOfUtc) {
    stored.gUtcOffset = 5;
    StartWithClock(UpTo21(10));
    EXPECT_EQ(Clock(), "23:50|05:00|Off time");
}

TEST_F(OffTimeClockTest, SilenceThatIsLongerThanTheLabelSaysSo) {
    clock.SetNow({2026, 11, 20, 21, 0, 0});
    StartWithClock(UpTo21(10));
    EXPECT_EQ(Clock(), "23:50|99:59|Off time");
}

TEST_F(OffTimeClockTest, ABeepAndRedWarnAt30AndAt5Minutes) {
    StartWithClock(UpTo21(1409));  // 31 minutes are left; the minute of 21:00 is still open
    EXPECT_EQ(Clock(), "00:31||Silence");
    EXPECT_FALSE(IsRed());
    LogOne("K1XX");
    EXPECT_EQ(Clock(), "00:30||Silence");
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(dialogs.beeps, 1);
    PassMinutes(25);
    EXPECT_EQ(Clock(), "00:06|00:24|Silence, off at 21:31");
    EXPECT_EQ(dialogs.beeps, 1);
    PassMinutes(1);
    EXPECT_EQ(dialogs.beeps, 2) << "at 5 minutes";
    PassMinutes(4);
    EXPECT_EQ(Clock(), "00:01|00:29|Silence, off at 21:31");
    PassMinutes(1);
    EXPECT_EQ(Clock(), "00:30|00:30|Off time") << "what was off is given back";
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(dialogs.beeps, 2);
    EXPECT_TRUE(TakeBoxes().empty());
}

TEST_F(OffTimeClockTest, AWarningComesAgainWhenItIsReachedAgain) {
    StartWithClock(UpTo21(1407));
    PassMinutes(4);
    EXPECT_EQ(Clock(), "00:29|00:04|Silence, off at 21:30");
    EXPECT_EQ(dialogs.beeps, 1);
    PassMinutes(40);
    EXPECT_EQ(Clock(), "00:33|00:44|Off time");
    EXPECT_FALSE(IsRed());
    EXPECT_EQ(dialogs.beeps, 2) << "5 minutes were left, too";
    for (const char* call : {"K1XX", "K2XX", "K3XX"}) {
        LogOne(call);
        PassMinutes(1);
    }
    EXPECT_EQ(Clock(), "00:30||Silence");
    EXPECT_EQ(dialogs.beeps, 3);
}

TEST_F(OffTimeClockTest, ALimitThatAReadLogIsBelowIsToldByTheNextMinute) {
    StartWithClock(UpTo21(1412));
    EXPECT_EQ(Clock(), "00:28||Silence");
    EXPECT_EQ(dialogs.beeps, 0);
    PassMinutes(1);
    EXPECT_EQ(dialogs.beeps, 1);
    PassMinutes(1);
    EXPECT_EQ(dialogs.beeps, 1);
}

TEST_F(OffTimeClockTest, AWarningIsSpokenToAScreenReader) {
    StartWithClock(UpTo21(1410));
    std::vector<std::string> spoken;
    TheDesk().outlets.announced = [&](std::string_view words) { spoken.emplace_back(words); };
    PassMinutes(25);
    PassMinutes(1);
    EXPECT_EQ(spoken, (Lines{"Left to operate: 29 minutes", "Left to operate: 5 minutes"}));
}

TEST_F(OffTimeClockTest, ALogThatIsOverIsReadWithoutABeep) {
    StartWithClock(UpTo21(1500));
    EXPECT_EQ(Clock(), "00:00||Silence");
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(dialogs.beeps, 0);
    PassMinutes(1);
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(OffTimeClockTest, SwitchedOnLateItIsSilentToo) {
    StartOnDesk(UpTo21(1438));
    dialogs.beeps = 0;
    ChooseMenu(Main().mnuOffTime);
    EXPECT_EQ(Clock(), "00:02||Silence");
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(OffTimeClockTest, FollowsEditingDeletingAndANewLog) {
    StartWithClock(UpTo21(10));
    EXPECT_EQ(Clock(), "23:50||Silence");
    ClickRow(0);
    Meanwhile([this] {
        Fill(EditForm().txtEditTime, "20:58:30");
        Click(EditForm().cmdDone);
    });
    Click(Main().cmdEdit);
    EXPECT_EQ(Clock(), "23:50|00:01|Silence, off at 21:29");
    dialogs.answers = {Answer::Yes};
    ClickRow(0);
    Click(Main().cmdDelete);
    EXPECT_EQ(Clock(), "23:50|00:01|Silence, off at 21:29") << "another contact has its minute";
    dialogs.answers = {Answer::Yes};
    ClickRow(0);
    Click(Main().cmdDelete);
    EXPECT_EQ(Clock(), "23:50|00:02|Silence, off at 21:28");
    dialogs.inputs = {"YES"};
    ChooseMenu(Main().mnuNew);
    EXPECT_EQ(Clock(), "24:00||Silence");
}

TEST_F(OffTimeClockTest, AClockSetBackAddsNothing) {
    StartWithClock(UpTo21(10));
    PassMinutes(5);
    EXPECT_EQ(Clock(), "23:45|00:05|Silence, off at 21:30");
    clock.SetNow({2026, 11, 8, 20, 55, 0});
    PassTime(1'000);
    EXPECT_EQ(Clock(), "23:50||Silence");
    clock.SetNow({9999, 12, 31, 23, 59, 59});
    stored.gUtcOffset = 5;
    program->preferences.gUtcOffset = 5;
    PassTime(1);
    EXPECT_EQ(Clock(), "23:50||Silence") << "a clock beyond all years";
}

// The minutes of the log.

using Change = SortedMinutes::Change;

ContactLog LogWith(const std::vector<std::string>& times) {
    ContactLog log;
    for (const std::string& time : times) {
        Contact contact = Worked("W1XX");
        contact.Time = time;
        log.Add(contact);
    }
    return log;
}

TEST(SortedMinutes, AContactThatIsAddedIsPutInItsPlace) {
    ContactLog log = LogWith({"21:00", "21:10"});
    SortedMinutes sorted;
    EXPECT_EQ(sorted.Follow(log, 2026), Change::ReadAnew);
    EXPECT_EQ(sorted.Follow(log, 2026), Change::None);
    Contact late = Worked("W2XX");
    late.Time = "21:05";
    log.Add(late);
    EXPECT_EQ(sorted.Follow(log, 2026), Change::Added);
    EXPECT_EQ(sorted.Minutes(), MinutesOf(log, 2026));
    late.Time = "no time";
    log.Add(late);
    EXPECT_EQ(sorted.Follow(log, 2026), Change::Added);
    EXPECT_EQ(sorted.Minutes().size(), 3U);
}

TEST(SortedMinutes, AnyOtherChangeIsReadAnew) {
    ContactLog log = LogWith({"21:00", "21:10"});
    SortedMinutes sorted;
    sorted.Follow(log, 2026);
    log.Change(1, [](Contact& contact) { contact.Time = "21:20"; });
    EXPECT_EQ(sorted.Follow(log, 2026), Change::ReadAnew);
    EXPECT_EQ(sorted.Minutes(), MinutesOf(log, 2026));
    log.Remove(2);
    EXPECT_EQ(sorted.Follow(log, 2026), Change::ReadAnew);
    EXPECT_EQ(sorted.Minutes().size(), 1U);
    log.Change(1, [](Contact& contact) { contact.Time = "22:00"; });
    log.Add(Worked("W3XX"));
    EXPECT_EQ(sorted.Follow(log, 2026), Change::ReadAnew) << "one changed beside the one added";
    EXPECT_EQ(sorted.Minutes(), MinutesOf(log, 2026));
}

}  // namespace
}  // namespace tallyhut
