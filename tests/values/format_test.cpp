#include "values/format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr int kPresentYear = 2026;

struct NumberCase {
    double value;
    std::string_view picture;
    std::string_view text;
};

constexpr NumberCase kNumbers[] = {
    {14.2, "###.####0", "14.20000"},
    {7.0251, "###.####0", "7.02510"},
    {0, "###.####0", ".00000"},
    {0.5, "###.####0", ".50000"},
    {1420, "###.####0", "1420.00000"},
    {14.2, "#####.####0", "14.20000"},
    {14.2, "#####.##0", "14.200"},
    {14.0005, "#####.##0", "14.001"},
    {14.00049, "#####.##0", "14.000"},
    {999999.9996, "#####.##0", "1000000.000"},
    {0, "#.000", ".000"},
    {3.5, "#.000", "3.500"},
    {14.0125, "#.000", "14.013"},
    {14.0135, "#.000", "14.014"},
    {0, "#######.0", ".0"},
    {14200, "#######.0", "14200.0"},
    {14012.5, "#######.0", "14012.5"},
    {0.05, "#######.0", ".1"},
    {0.04, "#######.0", ".0"},
    {14, "####.#####", "14."},
    {14.2, "####.#####", "14.2"},
    {14.00001, "####.#####", "14.00001"},
    {14.000004, "####.#####", "14."},
    {14.000005, "####.#####", "14.00001"},
    {0, "####.#####", "."},
    {0.25, "####.#####", ".25"},
    {3.5, "#,###.##0", "3.500"},
    {999.9995, "#,###.##0", "1,000.000"},
    {1296.1, "#,###.##0", "1,296.100"},
    {10368.1, "#,###.##0", "10,368.100"},
    {1234567.891, "#,###.##0", "1,234,567.891"},
    {0, "#,###.##0", ".000"},
    {0, "###0.0", "0.0"},
    {0.04, "###0.0", "0.0"},
    {0.05, "###0.0", "0.1"},
    {59.95, "###0.0", "60.0"},
    {12345.6, "###0.0", "12345.6"},
    {0, "0.00", "0.00"},
    {2.675, "0.00", "2.68"},
    {2.665, "0.00", "2.67"},
    {1.005, "0.00", "1.01"},
    {-1.005, "0.00", "-1.01"},
    {-14.2, "###.####0", "-14.20000"},
    {-0.5, "#.000", "-.500"},
    {-0.001, "0.00", "0.00"},
    {-1234.5, "#,##0.00", "-1,234.50"},
    {5, "0,000", "0,005"},
    {5, "000", "005"},
    {5, "#0#", "05"},
    {5.4, "#", "5"},
    {5.5, "#", "6"},
    {0.4, "#", ""},
    {0, "0", "0"},
    {1e15, "0", "1000000000000000"},
    {123456, "#,###", "123,456"},
    {100, "#,###", "100"},
    {1.5, "0.0#", "1.5"},
    {1.25, "0.0#", "1.25"},
    {1, "0.0#", "1.0"},
    {5, "", "5"},
};

TEST(FormatNumber, FollowsThePicture) {
    for (const auto& row : kNumbers) {
        EXPECT_EQ(FormatNumber(row.value, row.picture), row.text) << row.value << " by " << row.picture;
    }
}

TEST(FormatNumber, RoundsAFloatByItsSevenDigits) {
    EXPECT_EQ(FormatNumber(14.2F, "###.####0"), "14.20000");
    EXPECT_EQ(FormatNumber(28.12345F, "#####.####0"), "28.12345");
    EXPECT_EQ(FormatNumber(28.1255F, "#####.##0"), "28.126");
    EXPECT_EQ(FormatNumber(3.5F, "#,###.##0"), "3.500");
    for (int tenths = 35'005; tenths < 297'000; tenths += 10) {  // 3.5005, 3.5015, ... MHz
        const float frequency = static_cast<float>(tenths) / 10'000.0F;
        const std::string expected = FormatNumber((tenths + 5) / 10'000.0, "#.000");
        ASSERT_EQ(FormatNumber(frequency, "#.000"), expected) << tenths;
    }
}

TEST(FormatNumber, TakesWholeNumbers) {
    EXPECT_EQ(FormatNumber(14, "####.#####"), "14.");
    EXPECT_EQ(FormatNumber(std::uint8_t{7}, "000"), "007");
    EXPECT_EQ(FormatNumber(std::int64_t{1'234'567}, "#,##0"), "1,234,567");
}

TEST(FormatNumber, RefusesWhatIsNoPicture) {
    for (const std::string_view picture : {"0.0.0", "0 MHz", "0.0,0", "%", "-0", "0;0", " ", "x", "yyyy", "0.,"}) {
        EXPECT_THROW(FormatNumber(1, picture), ValueError) << picture;
    }
}

TEST(FormatNumber, RefusesWhatIsNotFinite) {
    for (const double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        EXPECT_THROW(FormatNumber(value, "0.0"), ValueError) << value;
        EXPECT_THROW(FormatNumber(static_cast<float>(value), "0.0"), ValueError) << value;
    }
}

TEST(FormatNumber, StaysWithinHalfAPlaceOfTheValue) {
    std::mt19937_64 random{42};
    std::uniform_real_distribution<double> anyValue{-100'000, 100'000};
    for (int round = 0; round < 20'000; ++round) {
        const double value = anyValue(random);
        const std::string text = FormatNumber(value, "#####0.##0");
        ASSERT_NEAR(TrimmedNumber(text), value, 0.000500001) << text;
        ASSERT_EQ(text.size() - text.find('.'), 4U) << text;
    }
}

struct DateCase {
    std::string_view picture;
    std::string_view text;
};

TEST(FormatDateTime, FollowsThePicture) {
    const DateTime at{2026, 11, 7, 9, 4, 3};
    const DateCase cases[] = {
        {"hh:mm:ss", "09:04:03"},
        {"hh:nn:ss", "09:04:03"},
        {"hh:mm", "09:04"},
        {"hh:nn", "09:04"},
        {"h:nn", "9:04"},
        {"h:mm", "9:04"},
        {"h:n:s", "9:4:3"},
        {"h:m", "9:4"},
        {"mm/dd", "11/07"},
        {"MM/DD", "11/07"},
        {"m/d", "11/7"},
        {"yyyy/mm/dd", "2026/11/07"},
        {"YYYY/MM/DD", "2026/11/07"},
        {"YYYYMMDD", "20261107"},
        {"yyyy-mm-dd", "2026-11-07"},
        {"yyyymmddhhnn", "202611070904"},
        {"yyyymmddhhmm", "202611070904"},
        {"yyyy/mm/dd hh:nn:ss", "2026/11/07 09:04:03"},
        {"mm/dd hh:mm", "11/07 09:04"},
        {"hh:mm mm/dd", "09:04 11/07"},
        {"h:nn:ss AMPM", "9:04:03 AM"},
        {"hh:nn ampm", "09:04 AM"},
        {"AMPM", "AM"},
        {"ddddd", "11/7/2026"},
        {"DDDDD hh:mm", "11/7/2026 09:04"},
        {"d.m.yy", "7.11.26"},
        {"[hh]", "[09]"},
        {"", ""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(FormatDateTime(at, row.picture), row.text) << row.picture;
    }
}

TEST(FormatDateTime, HalfDaysRunFromTwelve) {
    const std::pair<int, std::string_view> cases[] = {
        {0, "12:05 AM"}, {1, "1:05 AM"}, {11, "11:05 AM"}, {12, "12:05 PM"}, {13, "1:05 PM"}, {23, "11:05 PM"},
    };
    for (const auto& [hour, text] : cases) {
        EXPECT_EQ(FormatDateTime({.hour = hour, .minute = 5}, "h:nn AMPM"), text);
    }
    EXPECT_EQ(FormatDateTime({.hour = 21}, "AMPM"), "PM");
    EXPECT_EQ(FormatDateTime({.hour = 21}, "AMPM hh ddddd"), "PM 09 12/30/1899");
}

TEST(FormatDateTime, MonthsAreMinutesDirectlyBehindAnHourOnly) {
    const DateTime at{2026, 11, 7, 21, 4, 33};
    EXPECT_EQ(FormatDateTime(at, "hh mm"), "21 04");
    EXPECT_EQ(FormatDateTime(at, "hh:mm:mm"), "21:04:11");
    EXPECT_EQ(FormatDateTime(at, "hh:ss:mm"), "21:33:11");
    EXPECT_EQ(FormatDateTime(at, "mm:hh"), "11:21");
    EXPECT_EQ(FormatDateTime(at, "hh AMPM mm"), "09 PM 11");
}

TEST(FormatDateTime, RefusesWhatIsNoPicture) {
    for (const std::string_view picture : {"x", "y", "yyy", "yyyyy", "mmm", "mmmm", "ddd", "dddd", "hhh", "nnn", "sss",
                                           "AM", "hh:mm UTC", "d MMM yyyy"}) {
        EXPECT_THROW(FormatDateTime(DateTime{}, picture), ValueError) << picture;
    }
}

TEST(FormatDateTime, ShortDateFollowsTheMachine) {
    const DateTime at{2026, 11, 7, 21, 4, 33};
    EXPECT_EQ(ShortDate(at), "11/7/2026");
    EXPECT_EQ(ShortDate(at, "dd.mm.yyyy"), "07.11.2026");
    EXPECT_EQ(ShortDate(at, "yyyy-MM-dd"), "2026-11-07");
    EXPECT_EQ(ShortDate(at, "M/d/yy"), "11/7/26");
    EXPECT_EQ(FormatDateTime(at, "ddddd hh:mm", "d/m/yyyy"), "7/11/2026 21:04");
    EXPECT_EQ(FormatDateTime(at, "hh ddddd", "m/d/yyyy"), "21 11/7/2026");
    EXPECT_THROW(ShortDate(at, "ddddd"), ValueError);
}

TEST(FormatDateTime, FillsEarlyYearsToFourDigits) {
    EXPECT_EQ(FormatDateTime({.year = 100, .month = 1, .day = 2}, "yyyy/mm/dd"), "0100/01/02");
    EXPECT_EQ(FormatDateTime({.year = 2005, .month = 1, .day = 2}, "yy"), "05");
}

struct DateTextCase {
    std::string_view text;
    std::string_view picture;
    std::string_view formatted;
};

TEST(FormatDateText, FormatsDatesAndTimes) {
    const DateTextCase cases[] = {
        {"2026/11/07", "mm/dd", "11/07"},
        {"11/7/26", "yyyy/mm/dd", "2026/11/07"},
        {"11/7", "yyyy/mm/dd", "2026/11/07"},
        {"2026/11/07", "yyyy-mm-dd", "2026-11-07"},
        {"2026/11/07", "YYYYMMDD", "20261107"},
        {"21:04:33", "h:nn", "21:04"},
        {"09:15", "h:nn", "9:15"},
        {"9:15", "hh:mm", "09:15"},
        {"9:15 PM", "hh:mm", "21:15"},
        {"2026/11/07 21:04:33", "hh:mm", "21:04"},
        {"2026/11/07", "hh:mm", "00:00"},
        {"21:04", "mm/dd", "12/30"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(FormatDateText(row.text, row.picture, kPresentYear), row.formatted)
            << row.text << " by " << row.picture;
    }
}

TEST(FormatDateText, OtherTextFormatsToItself) {
    for (const std::string_view text :
         {"", " ", "915", "2130", "25:00", "2026/02/29", "MDC", " 9:5 ", "20261107", "\"", "5.5"}) {
        EXPECT_EQ(FormatDateText(text, "mm/dd", kPresentYear), text);
        EXPECT_EQ(FormatDateText(text, "h:nn", kPresentYear), text);
    }
}

}  // namespace
}  // namespace tallyhut
