#include "spots/spot_record.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

constexpr std::string_view kFile =
    "\"1200\"\r\n\"E\"\r\n\"7\"\r\n\"2\"\r\n3\r\n\"D\"\r\n\"Telnet\"\r\n1\r\n4\r\n1\r\n#TRUE#\r\n\"1B\"\r\n\"7300\"\r\n"
    "\"cluster.example\"\r\n";

TEST(SpotRecord, RoundTripsByteForByte) {
    SpotRecord record;
    ASSERT_TRUE(ReadSpotRecord(kFile, record));
    EXPECT_EQ(record.baud, "1200");
    EXPECT_EQ(record.commPort, 3);
    EXPECT_EQ(record.type, "Telnet");
    EXPECT_TRUE(record.showsList);
    EXPECT_EQ(record.telnetHost, "cluster.example");
    EXPECT_EQ(WriteSpotRecord(record), kFile);
}

TEST(SpotRecord, ShortOrDamagedFileIsReadAsFarAsItGoes) {
    SpotRecord record;
    EXPECT_FALSE(ReadSpotRecord("\"4800\"\r\n\"O\"\r\n", record));
    EXPECT_EQ(record.baud, "4800");
    EXPECT_EQ(record.parity, "O");
    EXPECT_EQ(record.dataBits, "8");
    SpotRecord damaged;
    EXPECT_FALSE(ReadSpotRecord("\"4800\"\r\n\"O\"\r\n\"7\"\r\n\"2\"\r\n300\r\n\"D\"\r\n", damaged));
    EXPECT_EQ(damaged.stopBits, "2");
    EXPECT_EQ(damaged.commPort, 1);
    EXPECT_EQ(damaged.power, "N");
    EXPECT_FALSE(ReadSpotRecord("", damaged));
}

}  // namespace
}  // namespace tallyhut
