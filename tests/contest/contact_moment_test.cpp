#include "contest/contact_moment.h"

#include <gtest/gtest.h>

#include "values/date_time.h"

namespace tallyhut {
namespace {

constexpr int kYear = 2026;

Contact ContactAt(const std::string& date, const std::string& time) {
    Contact contact;
    contact.Date = date;
    contact.Time = time;
    return contact;
}

ContactMoment Moment(int day, int hour, int minute, int second = 0) {
    return SecondsBetween({}, {kYear, 11, day, hour, minute, second});
}

TEST(ContactMoment, IsOfTheDateAndTimeAsTheyAreWritten) {
    MomentReader reader{kYear};
    EXPECT_EQ(reader.MomentOf(ContactAt("2026/11/07", "21:04:59")), Moment(7, 21, 4, 59));
    EXPECT_EQ(reader.MomentOf(ContactAt("11/7", "9:04 PM")), Moment(7, 21, 4));
    EXPECT_EQ(reader.MomentOf(ContactAt("2026/11/07", "")), std::nullopt);
    EXPECT_EQ(reader.MomentOf(ContactAt("", "21:04")), std::nullopt);
}

TEST(ContactMoment, WithoutAPresentYearADateBearsItsOwn) {
    MomentReader reader{std::nullopt};
    EXPECT_EQ(reader.MomentOf(ContactAt("2026/11/07", "21:04")), Moment(7, 21, 4));
    EXPECT_EQ(reader.MomentOf(ContactAt("2026-11-07", "21:04")), Moment(7, 21, 4));
    EXPECT_EQ(reader.MomentOf(ContactAt("11/07/2026", "21:04")), Moment(7, 21, 4));
    EXPECT_EQ(reader.MomentOf(ContactAt(" 11-7-26 ", "21:04")), Moment(7, 21, 4));
    for (const char* date : {"11/7", "11/07", "2/29", "11-7", "2026/11-07", "", "2026"}) {
        EXPECT_EQ(reader.MomentOf(ContactAt(date, "21:04")), std::nullopt) << date;
    }
}

TEST(ContactMoment, AReaderGoesFromDateToDate) {
    MomentReader reader{kYear};
    for (const auto& [date, time] : {std::pair{"2026/11/07", "21:04"},
                                     {"2026/11/07", "21:05"},
                                     {"2026/11/08", "21:05"},
                                     {"2026/11/07", "23:00"},
                                     {"2026/11/07", "x"},
                                     {"2026/11/07", "23:01"},
                                     {"2026/11/31", "23:01"},
                                     {"2026/11/31", "23:01"},
                                     {"x", "21:00"},
                                     {"", "21:00"}}) {
        EXPECT_EQ(reader.MomentOf(ContactAt(date, time)), MomentReader{kYear}.MomentOf(ContactAt(date, time)))
            << date << time;
    }
}

TEST(ContactMoment, AsFarAsItIsWrittenADateOrATimeMayStandAlone) {
    EXPECT_EQ(MomentAsFarAsWritten(ContactAt("2026/11/07", ""), kYear), Moment(7, 0, 0));
    EXPECT_EQ(MomentAsFarAsWritten(ContactAt("", "0:01"), kYear), 60);
    EXPECT_EQ(MomentAsFarAsWritten(ContactAt("2026/11/07", "21:04"), kYear), Moment(7, 21, 4));
    EXPECT_EQ(MomentAsFarAsWritten(ContactAt("2026/11/07", "noon"), kYear), std::nullopt);
}

}  // namespace
}  // namespace tallyhut
