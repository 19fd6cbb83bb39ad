#include "contest/rates.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyhut {
namespace {

constexpr DateTime kNow{2026, 11, 8, 0, 30, 0};

struct At {
    std::string date;
    std::string time;
};

ContactLog LogAt(const std::vector<At>& moments) {
    ContactLog log;
    for (const At& at : moments) {
        Contact contact;
        contact.Date = at.date;
        contact.Time = at.time;
        log.Add(contact);
    }
    return log;
}

TEST(Rates, EmptyLogHasNone) {
    EXPECT_EQ(RatesAt(kNow, {}), Rates{});
}

TEST(Rates, ContactsOf20MinutesCountThreefold) {
    const ContactLog log = LogAt({{"2026/11/07", "23:45:00"}, {"2026/11/08", "00:11:00"}, {"2026/11/08", "00:29"}});
    EXPECT_EQ(RatesAt(kNow, log), (Rates{.lastHour = 3, .lastTwentyMinutes = 6}));
}

TEST(Rates, LimitsThemselvesAreTooOld) {
    const ContactLog log = LogAt({{"2026/11/07", "23:30:00"},
                                  {"2026/11/07", "23:30:01"},
                                  {"2026/11/08", "00:10:00"},
                                  {"2026/11/08", "00:10:01"}});
    EXPECT_EQ(RatesAt(kNow, log), (Rates{.lastHour = 3, .lastTwentyMinutes = 3}));
}

TEST(Rates, CountEndsAtTheFirstContactThatIsAnHourOld) {
    const ContactLog log = LogAt({{"2026/11/08", "00:20:00"}, {"2026/11/07", "20:00:00"}, {"2026/11/08", "00:25:00"}});
    EXPECT_EQ(RatesAt(kNow, log), (Rates{.lastHour = 1, .lastTwentyMinutes = 3}));
}

TEST(Rates, DateOrTimeThatIsNoneGivesNoRates) {
    EXPECT_FALSE(RatesAt(kNow, LogAt({{"no date", "00:25:00"}})));
    EXPECT_FALSE(RatesAt(kNow, LogAt({{"2026/11/08", "25:99"}, {"2026/11/08", "00:25:00"}})));
}

TEST(Rates, NoneIsMissedBehindTheFirstThatIsAnHourOld) {
    EXPECT_TRUE(RatesAt(kNow, LogAt({{"no date", ""}, {"2026/11/07", "20:00:00"}, {"2026/11/08", "00:25:00"}})));
}

TEST(Rates, ContactOfTheFutureIsYoung) {
    EXPECT_EQ(RatesAt(kNow, LogAt({{"2026/11/08", "05:00:00"}})), (Rates{.lastHour = 1, .lastTwentyMinutes = 3}));
}

TEST(Rates, CountBeyondTheTablesIsRefused) {
    ContactLog log = LogAt(std::vector<At>(ContactLog::kMostContacts, At{"2026/11/08", "00:25:00"}));
    EXPECT_THROW(log.Add({}), LogFullError);
    EXPECT_THROW(RatesAt(kNow, log), LogFullError);
}

}  // namespace
}  // namespace tallyhut
