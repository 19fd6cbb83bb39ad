#include "log/rate_labels.h"

#include "tests/log/program_fixture.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr DateTime kNow{2026, 11, 7, 21, 0, 0};

struct TimeStatsTest : ProgramFixture {
    TimeStatsTest() { clock.SetNow(kNow); }

    /// A log of contacts so many seconds old, the oldest first as they were logged.
    void StartWithAges(const std::vector<std::int64_t>& ages) {
        std::vector<Contact> contacts = ManyContacts(static_cast<int>(ages.size()));
        for (std::size_t i = 0; i < ages.size(); ++i) {
            const DateTime at = AddSeconds(kNow, -ages[i]);
            contacts[i].Date = FormatDateTime(at, "yyyy/mm/dd");
            contacts[i].Time = FormatDateTime(at, "hh:mm:ss");
        }
        StartWith(contacts);
    }
    /// The rates of the last 60 and 20 minutes: "3|9".
    std::string Rates() { return Main().lblAQSO60.Caption() + '|' + Main().lblAQSO20.Caption(); }
};

struct RateCase {
    std::vector<std::int64_t> ages;
    std::string_view rates;
};

TEST_F(TimeStatsTest, ContactsCountByTheirAge) {
    const RateCase cases[] = {
        {{}, "0|0"},
        {{30, 20, 10}, "3|9"},
        {{0}, "1|3"},
        {{1'199}, "1|3"},
        {{1'200}, "1|0"},
        {{3'599}, "1|0"},
        {{3'600}, "0|0"},
        {{86'400}, "0|0"},
        {{4'000, 3'599, 1'200, 1'199, 5}, "4|6"},
        {{-600}, "1|3"},               // dated in the future
        {{-86'400, 10}, "2|6"},        // likewise
        {{10, 20, 5'000}, "0|0"},      // the newest row is old: the walk stops there
        {{10, 5'000, 20, 30}, "2|6"},  // and at an old row between
        {{5'000, 1'300, 1'250}, "2|0"},
    };
    for (const RateCase& one : cases) {
        StartWithAges(one.ages);
        EXPECT_EQ(Rates(), one.rates) << testing::PrintToString(one.ages);
        program.reset();
    }
}

TEST_F(TimeStatsTest, StoredTimesAreUtcAndTheOffsetLeadsThere) {
    Contact contact = Worked("W1XX");
    contact.Time = "23:55:00";
    stored.gUtcOffset = 3;  // 21:00 is 24:00 UTC
    StartWith({contact});
    EXPECT_EQ(Rates(), "1|3");
    program->preferences.gUtcOffset = 3.5;
    program->rates.TimeStats();
    EXPECT_EQ(Rates(), "1|0");
    program->preferences.gUtcOffset = 5;
    program->rates.TimeStats();
    EXPECT_EQ(Rates(), "0|0");
}

TEST_F(TimeStatsTest, TimeOfFiveCharactersCounts) {
    Contact contact = Worked("W1XX");
    contact.Time = "20:59";
    StartWith({contact});
    EXPECT_EQ(Rates(), "1|3");
}

TEST_F(TimeStatsTest, DateThatIsNoneLeavesBothRatesAsTheyAre) {
    StartWithAges({20, 10});
    ASSERT_EQ(Rates(), "2|6");
    clock.Advance(1'300'000);  // both would leave the 20 minutes
    for (const char* date : {"", "yesterday", "2026/13/01", "26/11/07"}) {
        program->log.Change(1, [date](Contact& oldest) {
            oldest.Date = date;
            oldest.Time = "no time";
        });
        program->rates.TimeStats();
        EXPECT_EQ(Rates(), "2|6") << date;
    }
}

TEST_F(TimeStatsTest, ClockBeyondAllYearsLeavesBothRatesAsTheyAre) {
    StartWithAges({20, 10});
    program->preferences.gUtcOffset = 1e30F;
    program->rates.TimeStats();
    EXPECT_EQ(Rates(), "2|6");
}

TEST_F(TimeStatsTest, RatesAreShownAnewEveryMinute) {
    StartWithAges({3'550, 1'190});
    EXPECT_EQ(Rates(), "2|3");
    PassTime(59'999);
    EXPECT_EQ(Rates(), "2|3");
    PassTime(1);
    EXPECT_EQ(Rates(), "1|0");
    PassTime(3'600'000);
    EXPECT_EQ(Rates(), "0|0");
}

TEST_F(TimeStatsTest, EveryEnterThatReachesItsEndShowsThemAnew) {
    StartWithAges({1'190});
    ASSERT_EQ(Rates(), "1|3");
    clock.Advance(10'000);
    Press("Enter");  // nothing is logged
    EXPECT_EQ(Rates(), "1|0");
}

TEST_F(TimeStatsTest, CommitCountsTheNewContact) {
    StartWith({});
    Type("88aW1XX72mdc");
    Press("Enter");
    EXPECT_EQ(Rates(), "1|3");
}

TEST_F(TimeStatsTest, StartWithoutALogShowsNoContacts) {
    Start();
    EXPECT_EQ(Rates(), "0|0");
}

}  // namespace
}  // namespace tallyhut
