#include "contest/contact_log.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

/// A log of one contact with this serial number sent.
ContactLog LastSent(const std::string& serial) {
    ContactLog log;
    log.gContactCount = 1;
    log.Row(1).Ns = serial;
    return log;
}

TEST(ContactLog, BeginsEmpty) {
    const ContactLog log;
    EXPECT_EQ(log.gContactCount, 0);
    EXPECT_EQ(log.gSavedCount, 0);
    EXPECT_EQ(log.gFrq, "");
    EXPECT_EQ(log.NextSerial(), 1);
}

TEST(ContactLog, HasRowsFrom1To11000) {
    ContactLog log;
    EXPECT_EQ(log.Row(1), Contact{});
    EXPECT_EQ(log.Row(11'000), Contact{});
    for (const std::int32_t row : {-1, 0, 11'001, 2'147'483'647}) {
        EXPECT_THROW(log.Row(row), LogFullError) << row;
    }
}

TEST(ContactLog, RowIsTheIdentityOfAContact) {
    ContactLog log;
    log.Row(3).Call = "W1XX";
    log.gContactCount = 3;
    EXPECT_EQ(log.Last().Call, "W1XX");
    EXPECT_EQ(log.Row(2).Call, "");
}

TEST(ContactLog, NextSerialIsThatOfTheLastContactPlus1) {
    struct Case {
        const char* last;
        double next;
    };
    for (const auto& [last, next] :
         {Case{"137", 138}, Case{"500", 501}, Case{" 7 ", 8}, Case{"007", 8}, Case{"0", 1}, Case{"-3", -2}}) {
        EXPECT_EQ(LastSent(last).NextSerial(), next) << last;
    }
}

TEST(ContactLog, NextSerialDoesNotCountRows) {
    ContactLog log = LastSent("12");
    log.gContactCount = 5;
    log.Row(5).Ns = "40";
    EXPECT_EQ(log.NextSerial(), 41);
}

TEST(ContactLog, SerialThatIsNoNumberIsRefused) {
    for (const char* last : {"", " ", "A", "12A", "1 2", "1,2"}) {
        EXPECT_THROW(LastSent(last).NextSerial(), ValueError) << last;
    }
}

}  // namespace
}  // namespace tallyhut
