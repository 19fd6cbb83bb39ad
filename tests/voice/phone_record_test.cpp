#include "voice/phone_record.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

constexpr const char* kText =
    "\"/w/F1.wav\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n\"7\"\r\n\"8\"\r\n\"9\"\r\n\"3\"\r\n2\r\n\"5.5\"\r\n"
    "\"&H278\"\r\n";

TEST(PhoneRecord, RoundTripsByteForByte) {
    PhoneRecord record;
    ASSERT_TRUE(ReadPhoneRecord(kText, record));
    EXPECT_EQ(record.Text1, "/w/F1.wav");
    EXPECT_EQ(record.Text9, "9");
    EXPECT_EQ(record.Text10, "3");
    EXPECT_EQ(record.line, 2);
    EXPECT_EQ(record.txtPHLoop, "5.5");
    EXPECT_EQ(record.Text11, "&H278");
    EXPECT_EQ(WritePhoneRecord(record), kText);
}

TEST(PhoneRecord, DamageIsToldAndWhatStoodBeforeItIsRead) {
    const std::string text = kText;
    for (const std::string& damaged :
         {std::string{}, text.substr(0, text.find("\"9\"")),
          text.substr(0, text.find("\r\n2\r\n") + 2) + "RTS\r\n\"5\"\r\n", text.substr(0, text.rfind("\"&H278"))}) {
        PhoneRecord record;
        EXPECT_FALSE(ReadPhoneRecord(damaged, record)) << damaged;
        EXPECT_EQ(record.Text1, damaged.empty() ? "" : "/w/F1.wav") << damaged;
        EXPECT_EQ(record.Text11, "&H378") << damaged;
    }
}

}  // namespace
}  // namespace tallyhut
