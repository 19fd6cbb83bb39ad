#include "values/date_time.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>

#include "values/format.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr int kPresentYear = 2026;
constexpr std::string_view kWhole = "yyyy/mm/dd hh:nn:ss";

std::string Shown(const std::optional<DateTime>& at) {
    return at ? FormatDateTime(*at, kWhole) : "none";
}

std::string MessageOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const ValueError& error) {
        return error.what();
    }
    return "nothing was refused";
}

struct TextCase {
    std::string_view text;
    std::string_view shown;
};

constexpr TextCase kDates[] = {
    {"2026/11/07", "2026/11/07 00:00:00"}, {"2026/11/7", "2026/11/07 00:00:00"},
    {"2026-11-07", "2026/11/07 00:00:00"}, {"  2026/11/07  ", "2026/11/07 00:00:00"},
    {"11/7/2026", "2026/11/07 00:00:00"},  {"11-7-2026", "2026/11/07 00:00:00"},
    {"11/07/26", "2026/11/07 00:00:00"},   {"1/2/3", "2003/01/02 00:00:00"},
    {"1/1/00", "2000/01/01 00:00:00"},     {"1/1/29", "2029/01/01 00:00:00"},
    {"1/1/30", "1930/01/01 00:00:00"},     {"1/1/99", "1999/01/01 00:00:00"},
    {"11/7", "2026/11/07 00:00:00"},       {"11-7", "2026/11/07 00:00:00"},
    {"100/1/1", "0100/01/01 00:00:00"},    {"1/1/100", "0100/01/01 00:00:00"},
    {"9999/12/31", "9999/12/31 00:00:00"}, {"2024/02/29", "2024/02/29 00:00:00"},
    {"2000/02/29", "2000/02/29 00:00:00"}, {"1899/12/30", "1899/12/30 00:00:00"},
};

constexpr std::string_view kNoDates[] = {
    "",
    " ",
    "/",
    "//",
    "11",
    "2026",
    "20261107",
    "2026/11",
    "11/2026",
    "2026/02/29",
    "2/29",
    "1900/02/29",
    "2100/2/29",
    "2026/00/10",
    "2026/13/01",
    "2026/11/00",
    "2026/11/31",
    "0/1",
    "1/0",
    "13/1",
    "1/32",
    "99/1/1",
    "26/11/07",
    "13/11/2026",
    "0099/1/1",
    "0000/1/1",
    "10000/1/1",
    "1/1/10000",
    "1/1/0099",
    "2026/11/07/1",
    "2026//07",
    "/11/07",
    "2026/11/",
    "2026/11-07",
    "2026-11/07",
    "11/7-2026",
    "2026.11.07",
    "2026 11 07",
    "2026/ 11/07",
    "2026/011/07",
    "2026/11/007",
    "+2026/11/07",
    "-11/7",
    "1/-1",
    "Nov 7",
    "2026/1a/07",
    "2026/11/07x",
    "2026/257/01",
    "2026/11/07 21:04",
    "21:04",
    "2026/11/07 ,",
};

constexpr TextCase kTimes[] = {
    {"21:04:33", "1899/12/30 21:04:33"},    {"21:04", "1899/12/30 21:04:00"},
    {"9:15", "1899/12/30 09:15:00"},        {"09:15", "1899/12/30 09:15:00"},
    {"0:00", "1899/12/30 00:00:00"},        {"00:00:00", "1899/12/30 00:00:00"},
    {"23:59:59", "1899/12/30 23:59:59"},    {" 9:15 ", "1899/12/30 09:15:00"},
    {"9:15 AM", "1899/12/30 09:15:00"},     {"9:15 pm", "1899/12/30 21:15:00"},
    {"9:15PM", "1899/12/30 21:15:00"},      {"9:15:33   Pm", "1899/12/30 21:15:33"},
    {"12:00 AM", "1899/12/30 00:00:00"},    {"12:30 am", "1899/12/30 00:30:00"},
    {"12:00 PM", "1899/12/30 12:00:00"},    {"1:00 AM", "1899/12/30 01:00:00"},
    {"11:59:59 PM", "1899/12/30 23:59:59"},
};

constexpr std::string_view kNoTimes[] = {
    "",          " ",        ":",          "::",
    "9",         "915",      "2130",       "9:",
    ":15",       "9:5",      "9:5:3",      "9:05:3",
    "24:00",     "24:00:00", "25:00",      "99:99",
    "9:60",      "9:15:60",  "9:015",      "009:15",
    "-9:15",     "+9:15",    "9:-1",       "9.15",
    "9 :15",     "9: 15",    "9:15:",      "9:15:33:1",
    "9:15:33.5", "13:00 PM", "13:00 AM",   "0:30 AM",
    "0:00 PM",   "9:15 M",   "9:15 A",     "9:15 XM",
    "AM",        "PM 9:15",  "9:15 AM PM", "AM9:15",
    "9 AM",      "11/7",     "2026/11/07", "2026/11/07 9:15",
    "noon",
};

constexpr TextCase kDateTimes[] = {
    {"2026/11/07 21:04:33", "2026/11/07 21:04:33"},
    {"2026/11/07 21:04", "2026/11/07 21:04:00"},
    {"  2026/11/07   21:04:33  ", "2026/11/07 21:04:33"},
    {"11/7/2026 9:04:33 PM", "2026/11/07 21:04:33"},
    {"11/7 9:04PM", "2026/11/07 21:04:00"},
    {"2024-2-29 0:00", "2024/02/29 00:00:00"},
};

constexpr std::string_view kNoDateTimes[] = {
    "2026/11/07 25:00",   "2026/02/29 21:04", "21:04 2026/11/07",  "2026/11/07 x",
    "2026/11/07 21:04 x", "x 21:04",          "2026/11/07\t21:04", "2026/11/0721:04",
    "11/7 11/7",          "21:04 21:04",      "PM 11/7",           "MDC",
};

TEST(DateTime, DateTextIsReadAtMidnight) {
    for (const auto& row : kDates) {
        EXPECT_EQ(Shown(ParseDate(row.text, kPresentYear)), row.shown) << row.text;
        EXPECT_EQ(Shown(ParseDateTime(row.text, kPresentYear)), row.shown) << row.text;
        EXPECT_TRUE(IsDate(row.text)) << row.text;
        EXPECT_FALSE(IsTime(row.text)) << row.text;
    }
}

TEST(DateTime, OtherTextIsNoDate) {
    for (const std::string_view text : kNoDates) {
        EXPECT_EQ(Shown(ParseDate(text, kPresentYear)), "none") << '[' << text << ']';
        EXPECT_FALSE(IsDate(text)) << '[' << text << ']';
    }
}

TEST(DateTime, TimeTextIsReadOnTheZeroDate) {
    for (const auto& row : kTimes) {
        EXPECT_EQ(Shown(ParseTime(row.text)), row.shown) << row.text;
        EXPECT_EQ(Shown(ParseDateTime(row.text, kPresentYear)), row.shown) << row.text;
        EXPECT_TRUE(IsTime(row.text)) << row.text;
        EXPECT_FALSE(IsDate(row.text)) << row.text;
    }
}

TEST(DateTime, OtherTextIsNoTime) {
    for (const std::string_view text : kNoTimes) {
        EXPECT_EQ(Shown(ParseTime(text)), "none") << '[' << text << ']';
        EXPECT_FALSE(IsTime(text)) << '[' << text << ']';
    }
}

TEST(DateTime, DateBlankTimeIsReadAsOneMoment) {
    for (const auto& row : kDateTimes) {
        EXPECT_EQ(Shown(ParseDateTime(row.text, kPresentYear)), row.shown) << row.text;
        EXPECT_FALSE(IsDate(row.text)) << row.text;
        EXPECT_FALSE(IsTime(row.text)) << row.text;
    }
}

TEST(DateTime, OtherTextIsNoMoment) {
    for (const std::string_view text : kNoDateTimes) {
        EXPECT_EQ(Shown(ParseDateTime(text, kPresentYear)), "none") << '[' << text << ']';
    }
}

TEST(DateTime, ADayWithoutAYearLiesInThePresentOne) {
    EXPECT_EQ(Shown(ParseDate("2/29", 2024)), "2024/02/29 00:00:00");
    EXPECT_EQ(Shown(ParseDate("2/29", 2026)), "none");
    EXPECT_EQ(Shown(ParseDate("11/7", 99)), "none");
    EXPECT_EQ(Shown(ParseDate("11/7", 10'000)), "none");
}

TEST(DateTime, WhatIsADateIsOneInEveryPresentYear) {
    for (int month = 0; month <= 13; ++month) {
        for (int day = 0; day <= 32; ++day) {
            const std::string text = std::to_string(month) + "/" + std::to_string(day);
            for (int year = 2023; IsDate(text) && year <= 2026; ++year) {
                EXPECT_TRUE(ParseDate(text, year)) << text;
            }
        }
    }
}

TEST(DateTime, EveryDayOfTheCalendarReadsBack) {
    DateTime day{.year = 1896, .month = 1, .day = 1};
    for (; day.year < 2105; day = AddHours(day, 24)) {
        ASSERT_EQ(ParseDate(FormatDateTime(day, "yyyy/mm/dd"), kPresentYear), day);
        ASSERT_EQ(ParseDate(FormatDateTime(day, "yyyy-mm-dd"), kPresentYear), day);
        ASSERT_EQ(ParseDate(ShortDate(day), kPresentYear), day);
    }
}

TEST(DateTime, EverySecondOfTheDayReadsBack) {
    DateTime time;
    for (int second = 0; second < 86'400; ++second, time = AddSeconds(time, 1)) {
        ASSERT_EQ(ParseTime(FormatDateTime(time, "hh:nn:ss")), time);
        ASSERT_EQ(ParseTime(FormatDateTime(time, "h:nn:ss AMPM")), time);
    }
}

TEST(DateTime, StartsAtTheZeroDate) {
    EXPECT_EQ(Shown(DateTime{}), "1899/12/30 00:00:00");
}

TEST(DateTime, ComparesAsMoments) {
    const DateTime at{.year = 2026, .month = 11, .day = 7, .hour = 21, .minute = 4, .second = 33};
    EXPECT_EQ(at, (DateTime{2026, 11, 7, 21, 4, 33}));
    EXPECT_LT(at, (DateTime{2026, 11, 7, 21, 4, 34}));
    EXPECT_LT(at, (DateTime{2026, 12, 1, 0, 0, 0}));
    EXPECT_GT(at, (DateTime{2025, 12, 31, 23, 59, 59}));
}

struct SecondsCase {
    std::string_view from;
    std::int64_t seconds;
    std::string_view to;
};

constexpr SecondsCase kSeconds[] = {
    {"2026/11/07 21:04:33", 0, "2026/11/07 21:04:33"},
    {"2026/11/07 21:04:33", 1800, "2026/11/07 21:34:33"},
    {"2026/11/07 23:45:00", 1800, "2026/11/08 00:15:00"},
    {"2026/12/31 23:59:59", 1, "2027/01/01 00:00:00"},
    {"2027/01/01 00:00:00", -1, "2026/12/31 23:59:59"},
    {"2024/02/28 23:59:59", 1, "2024/02/29 00:00:00"},
    {"2024/02/29 23:59:59", 1, "2024/03/01 00:00:00"},
    {"2026/02/28 23:59:59", 1, "2026/03/01 00:00:00"},
    {"1900/02/28 23:59:59", 1, "1900/03/01 00:00:00"},
    {"2000/02/28 23:59:59", 1, "2000/02/29 00:00:00"},
    {"1969/12/31 23:59:59", 2, "1970/01/01 00:00:01"},
    {"1899/12/30 23:45:00", 1800, "1899/12/31 00:15:00"},
    {"2024/01/01 00:00:00", 31'622'400, "2025/01/01 00:00:00"},
    {"0100/01/01 00:00:00", 312'413'759'999, "9999/12/31 23:59:59"},
    {"9999/12/31 23:59:59", -312'413'759'999, "0100/01/01 00:00:00"},
};

TEST(DateTime, SecondsCrossDaysMonthsAndYears) {
    for (const auto& row : kSeconds) {
        const DateTime from = ParseDateTime(row.from, kPresentYear).value();
        EXPECT_EQ(Shown(AddSeconds(from, row.seconds)), row.to) << row.from;
        EXPECT_EQ(SecondsBetween(from, ParseDateTime(row.to, kPresentYear).value()), row.seconds) << row.from;
    }
}

TEST(DateTime, AddingAndTakingTheDifferenceAreInverse) {
    std::mt19937_64 random{1107};
    std::uniform_int_distribution<std::int64_t> anySeconds{0, 312'413'759'999};
    const DateTime first{.year = 100, .month = 1, .day = 1};
    DateTime earlier = first;
    std::int64_t secondsOfEarlier = 0;
    for (int round = 0; round < 50'000; ++round) {
        const std::int64_t seconds = anySeconds(random);
        const DateTime at = AddSeconds(first, seconds);
        ASSERT_EQ(SecondsBetween(first, at), seconds);
        ASSERT_EQ(SecondsBetween(at, first), -seconds);
        ASSERT_EQ(SecondsBetween(earlier, at), seconds - secondsOfEarlier);
        ASSERT_EQ(AddSeconds(earlier, seconds - secondsOfEarlier), at);
        ASSERT_EQ(ParseDateTime(FormatDateTime(at, kWhole), kPresentYear), at);
        ASSERT_EQ(at < earlier, seconds < secondsOfEarlier);
        earlier = at;
        secondsOfEarlier = seconds;
    }
}

TEST(DateTime, EveryYearEndAndLeapDayIsCrossedSecondBySecond) {
    for (int year = 1896; year <= 2104; ++year) {
        const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
        const DateTime endOfFebruary{year, 2, isLeap ? 29 : 28, 23, 59, 59};
        const DateTime firstOfMarch{.year = year, .month = 3, .day = 1};
        EXPECT_EQ(AddSeconds(endOfFebruary, 1), firstOfMarch) << year;
        EXPECT_EQ(SecondsBetween(firstOfMarch, endOfFebruary), -1) << year;
        const DateTime endOfYear{year, 12, 31, 23, 59, 59};
        const DateTime newYear{.year = year + 1, .month = 1, .day = 1};
        EXPECT_EQ(AddSeconds(endOfYear, 1), newYear) << year;
        EXPECT_EQ(AddSeconds(newYear, -1), endOfYear) << year;
    }
}

struct UnitsCase {
    double units;
    std::string_view to;
};

TEST(DateTime, MinutesAreRoundedHalvesToEven) {
    const DateTime from{2026, 11, 7, 21, 4, 33};
    const UnitsCase cases[] = {
        {0, "2026/11/07 21:04:33"},    {300, "2026/11/08 02:04:33"},  {-330, "2026/11/07 15:34:33"},
        {0.5, "2026/11/07 21:04:33"},  {1.5, "2026/11/07 21:06:33"},  {2.5, "2026/11/07 21:06:33"},
        {-0.5, "2026/11/07 21:04:33"}, {-1.5, "2026/11/07 21:02:33"}, {0.51, "2026/11/07 21:05:33"},
        {1440, "2026/11/08 21:04:33"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Shown(AddMinutes(from, row.units)), row.to) << row.units;
    }
}

TEST(DateTime, HoursAreRoundedHalvesToEven) {
    const DateTime from{2026, 11, 7, 21, 4, 33};
    const UnitsCase cases[] = {
        {0, "2026/11/07 21:04:33"},    {5, "2026/11/08 02:04:33"},    {-5, "2026/11/07 16:04:33"},
        {0.5, "2026/11/07 21:04:33"},  {2.5, "2026/11/07 23:04:33"},  {3.5, "2026/11/08 01:04:33"},
        {-5.5, "2026/11/07 15:04:33"}, {-4.5, "2026/11/07 17:04:33"}, {5.75, "2026/11/08 03:04:33"},
        {24, "2026/11/08 21:04:33"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Shown(AddHours(from, row.units)), row.to) << row.units;
    }
}

TEST(DateTime, ArithmeticStaysWithinItsYears) {
    const DateTime first{.year = 100, .month = 1, .day = 1};
    const DateTime last{9999, 12, 31, 23, 59, 59};
    EXPECT_THROW(AddSeconds(first, -1), ValueError);
    EXPECT_THROW(AddSeconds(last, 1), ValueError);
    EXPECT_THROW(AddMinutes(last, 1), ValueError);
    EXPECT_THROW(AddHours(first, -1), ValueError);
    for (const std::int64_t seconds :
         {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_THROW(AddSeconds(first, seconds), ValueError) << seconds;
        EXPECT_THROW(AddSeconds(last, seconds), ValueError) << seconds;
    }
    for (const double units : {1e11, -1e11, 1e13, 1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_THROW(AddMinutes(first, units), ValueError) << units;
        EXPECT_THROW(AddHours(last, units), ValueError) << units;
    }
    EXPECT_EQ(MessageOf([&] { AddSeconds(last, 1); }), "the time to add leaves the years 100 to 9999");
}

TEST(DateTime, ArithmeticRefusesWhatTheCalendarDoesNotHave) {
    const DateTime wrong[] = {
        {2026, 2, 29, 0, 0, 0}, {2026, 0, 1, 0, 0, 0},   {2026, 13, 1, 0, 0, 0}, {2026, 257, 1, 0, 0, 0},
        {2026, 1, 0, 0, 0, 0},  {2026, 1, 257, 0, 0, 0}, {2026, 1, -1, 0, 0, 0}, {99, 1, 1, 0, 0, 0},
        {10000, 1, 1, 0, 0, 0}, {2026, 1, 1, 24, 0, 0},  {2026, 1, 1, -1, 0, 0}, {2026, 1, 1, 0, 60, 0},
        {2026, 1, 1, 0, 0, 60}, {2026, 1, 1, 0, 0, -1},
    };
    for (const auto& at : wrong) {
        EXPECT_THROW(AddSeconds(at, 0), ValueError) << at.year << '/' << at.month << '/' << at.day;
        EXPECT_THROW(SecondsBetween(at, DateTime{}), ValueError) << at.year << '/' << at.month << '/' << at.day;
        EXPECT_THROW(SecondsBetween(DateTime{}, at), ValueError) << at.year << '/' << at.month << '/' << at.day;
    }
    EXPECT_EQ(MessageOf([&] { AddSeconds(wrong[0], 0); }), "there is no such date and time: 2026/2/29 0:0:0");
}

}  // namespace
}  // namespace tallyhut
