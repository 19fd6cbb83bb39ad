#include "contest/off_time.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tallyhut {
namespace {

constexpr int kYear = 2026;

Contact ContactAt(std::string_view date, std::string_view time) {
    Contact contact;
    contact.Date = date;
    contact.Time = time;
    return contact;
}

/// A contact of November 2026, "7 21:04".
Contact ContactAt(std::string_view dayAndTime) {
    const std::size_t gap = dayAndTime.find(' ');
    return ContactAt("2026/11/" + std::string{dayAndTime.substr(0, gap)}, dayAndTime.substr(gap + 1));
}

ContestMinute Minute(std::string_view dayAndTime) {
    return MinuteOf(*MomentReader{kYear}.MomentOf(ContactAt(dayAndTime)));
}

/// Of contacts in the order of the log.
std::vector<ContestMinute> Minutes(const std::vector<std::string>& contacts) {
    ContactLog log;
    for (const std::string& contact : contacts) {
        log.Add(ContactAt(contact));
    }
    return MinutesOf(log, kYear);
}

struct OffTimeCase {
    std::string_view what;
    std::vector<std::string> contacts;
    std::string_view now;
    std::int64_t operated;
    std::int64_t silence;
    std::string_view offFrom = "";  ///< empty for none
};

TEST(OffTime, FollowsFromTheMinutesOfTheContactsAndTheClock) {
    const OffTimeCase cases[] = {
        {"nothing logged", {}, "7 21:00", 0, 0},
        {"a minute is operated whole", {"7 21:00:59"}, "7 21:00", 1, 0, "7 21:31"},
        {"the present minute is no silence yet", {"7 21:00"}, "7 21:01", 1, 0, "7 21:31"},
        {"an empty minute counts as operated", {"7 21:00"}, "7 21:02", 2, 1, "7 21:31"},
        {"29 empty minutes", {"7 21:00"}, "7 21:30", 30, 29, "7 21:31"},
        {"30 empty minutes are off", {"7 21:00"}, "7 21:31", 1, 30, "7 21:31"},
        {"and so are all behind them", {"7 21:00"}, "8 03:31", 1, 390, "7 21:31"},
        {"contacts of one minute", {"7 21:00:01", "7 21:00:30", "7 21:00"}, "7 21:00", 1, 0, "7 21:31"},
        {"29 empty minutes between contacts", {"7 21:00", "7 21:30"}, "7 21:30", 31, 0, "7 22:01"},
        {"30 of them", {"7 21:00", "7 21:31"}, "7 21:31", 2, 0, "7 22:02"},
        {"31 of them", {"7 21:00", "7 21:32"}, "7 21:32", 2, 0, "7 22:03"},
        {"seconds play no part", {"7 21:00:00", "7 21:30:59"}, "7 21:30", 31, 0, "7 22:01"},
        {"nor do they the other way round", {"7 21:00:59", "7 21:31:00"}, "7 21:31", 2, 0, "7 22:02"},
        {"contacts out of order", {"7 21:40", "7 21:00", "7 21:20"}, "7 21:40", 41, 0, "7 22:11"},
        {"over midnight", {"7 23:50", "8 00:10"}, "8 00:10", 21, 0, "8 00:41"},
        {"off over midnight", {"7 23:50", "8 00:21"}, "8 00:22", 2, 0, "8 00:52"},
        {"silence over midnight", {"7 23:50"}, "8 00:05", 15, 14, "8 00:21"},
        {"dates and times that are none", {"7 21:00", "7 25:99", "31 21:10", "7 "}, "7 21:00", 1, 0, "7 21:31"},
        {"none that is one", {"7 no", "x 21:00"}, "7 21:00", 0, 0},
        {"a clock that was set back", {"7 21:00", "7 21:10"}, "7 20:00", 11, 0, "7 21:41"},
        {"two times off", {"7 21:00", "7 22:00", "7 22:10", "7 23:10"}, "7 23:12", 14, 1, "7 23:41"},
    };
    for (const OffTimeCase& one : cases) {
        const OffTime at = OffTimeAt(Minute(one.now), Minutes(one.contacts));
        EXPECT_EQ(kMinutesToOperate - at.left, one.operated) << one.what;
        EXPECT_EQ(at.silence, one.silence) << one.what;
        EXPECT_EQ(at.offFrom, one.offFrom.empty() ? std::nullopt : std::optional{Minute(one.offFrom)}) << one.what;
        EXPECT_EQ(at.IsOff(), one.silence >= 30) << one.what;
    }
}

/// Contacts in each minute from one on.
std::vector<ContestMinute> Each(ContestMinute from, std::int64_t count) {
    std::vector<ContestMinute> minutes;
    for (std::int64_t i = 0; i < count; ++i) {
        minutes.push_back(from + i);
    }
    return minutes;
}

TEST(OffTime, NothingIsLeftBehind24HoursAndNeverLessThanThat) {
    const ContestMinute start = Minute("7 21:00");
    EXPECT_EQ(OffTimeAt(start + 1438, Each(start, 1439)).left, 1);
    EXPECT_EQ(OffTimeAt(start + 1439, Each(start, 1440)).left, 0);
    EXPECT_EQ(OffTimeAt(start + 1500, Each(start, 1501)).left, 0);
    EXPECT_EQ(OffTimeAt(start + 1500, Each(start, 1480)).left, 0) << "with 20 minutes of silence";
}

TEST(OffTime, SilenceIsGivenBackWhenItIsOff) {
    const ContestMinute start = Minute("7 21:00");
    const std::vector<ContestMinute> contacts = Each(start, 1400);
    EXPECT_EQ(OffTimeAt(start + 1399 + 30, contacts).left, 11);
    EXPECT_EQ(OffTimeAt(start + 1399 + 31, contacts).left, 40);
}

TEST(OffTime, ContactsOfOneMinuteAreOneMinuteHoweverManyTheyAre) {
    const std::vector<ContestMinute> contacts(ContactLog::kMostContacts, Minute("7 21:00"));
    EXPECT_EQ(OffTimeAt(Minute("7 21:00"), contacts).left, kMinutesToOperate - 1);
    EXPECT_EQ(FirstMinuteBeyond(contacts), std::nullopt);
}

TEST(OffTime, ContactsCountUpToThe1440thMinuteOfOperating) {
    const ContestMinute start = Minute("7 21:00");
    EXPECT_EQ(FirstMinuteBeyond({}), std::nullopt);
    EXPECT_EQ(FirstMinuteBeyond(Each(start, 1440)), std::nullopt);
    EXPECT_EQ(FirstMinuteBeyond(Each(start, 1441)), start + 1440);
    std::vector<ContestMinute> withOff = Each(start, 1000);
    std::ranges::copy(Each(start + 1030, 441), std::back_inserter(withOff));
    EXPECT_EQ(FirstMinuteBeyond(withOff), start + 1030 + 440) << "30 minutes off";
    withOff = Each(start, 1000);
    std::ranges::copy(Each(start + 1029, 441), std::back_inserter(withOff));
    EXPECT_EQ(FirstMinuteBeyond(withOff), start + 1029 + 411) << "29 empty minutes";
}

TEST(OffTime, MinutesAreToldAsHoursAndMinutes) {
    EXPECT_EQ(ClockText(0), "00:00");
    EXPECT_EQ(ClockText(7), "00:07");
    EXPECT_EQ(ClockText(1439), "23:59");
    EXPECT_EQ(ClockText(6000), "100:00");
}

TEST(OffTime, AMinuteIsTheWholeOneThatTheMomentLiesIn) {
    EXPECT_EQ(MinuteOf(DateTime{2026, 11, 7, 21, 4, 59}), Minute("7 21:04"));
    EXPECT_EQ(MinuteOf(ContactMoment{59}), 0);
    EXPECT_EQ(MinuteOf(ContactMoment{-1}), -1) << "before the zero date";
    EXPECT_EQ(MinuteOf(DateTime{1826, 11, 7, 12, 30, 30}), MinuteOf(DateTime{1826, 11, 7, 12, 30, 0}));
}

}  // namespace
}  // namespace tallyhut
