#include "keying/cw_record.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

constexpr const char* kFile =
    "\"CQ SS "
    "$\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n\"7\"\r\n\"8\"\r\n\"9\"\r\n\"4\"\r\n\"24\"\r\n\"F10\"\r\n"
    "\"F11\"\r\n\"-4\"\r\n2\r\n\"&H278\"\r\n1\r\n\"5\"\r\n";

CwRecord WholeRecord() {
    CwRecord record;
    record.Text1 = "CQ SS $";
    record.Text2 = "2";
    record.Text3 = "3";
    record.Text4 = "4";
    record.Text5 = "5";
    record.Text6 = "6";
    record.Text7 = "7";
    record.Text8 = "8";
    record.Text9 = "9";
    record.Text10 = "4";
    record.Text11 = "24";
    record.Text12 = "F10";
    record.Text13 = "F11";
    record.txtSpace = "-4";
    record.gCWKeying = 2;
    record.Text14 = "&H278";
    record.Check1 = 1;
    record.txtCWLoop = "5";
    return record;
}

TEST(CwRecord, RoundTripsByteForByte) {
    CwRecord record;
    EXPECT_TRUE(ReadCwRecord(kFile, record));
    EXPECT_EQ(record, WholeRecord());
    EXPECT_EQ(WriteCwRecord(record), kFile);
}

TEST(CwRecord, EmptyNinthLineBecomesTheTestMessage) {
    CwRecord record = WholeRecord();
    record.Text9.clear();
    CwRecord read;
    EXPECT_TRUE(ReadCwRecord(WriteCwRecord(record), read));
    EXPECT_EQ(read.Text9, "VVV DE ");
}

TEST(CwRecord, EmptyFileChangesNothing) {
    CwRecord record;
    EXPECT_FALSE(ReadCwRecord("", record));
    EXPECT_EQ(record, CwRecord{});
    EXPECT_EQ(record.Text9, "");
}

TEST(CwRecord, ShortFileIsReadAsFarAsItGoes) {
    const std::string whole = kFile;
    std::size_t lines = 0;
    for (std::size_t end = whole.find("\r\n"); end != whole.size() - 2; end = whole.find("\r\n", end + 2)) {
        ++lines;
        CwRecord record;
        EXPECT_FALSE(ReadCwRecord(whole.substr(0, end + 2), record)) << lines;
        EXPECT_EQ(record.Text1, "CQ SS $") << lines;
        EXPECT_EQ(record.Text11, lines >= 11 ? "24" : "13") << lines;
        EXPECT_EQ(record.gCWKeying, lines >= 15 ? 2 : 0) << lines;
    }
    EXPECT_EQ(lines, 17U);
}

TEST(CwRecord, DamagedLineEndsTheReading) {
    CwRecord record;
    EXPECT_FALSE(ReadCwRecord("\"CQ\"\r\n\"TU\r\n\"NR\"\r\n", record));
    EXPECT_EQ(record.Text1, "CQ");
    EXPECT_EQ(record.Text2, "");
    std::string wrongNumber = kFile;
    wrongNumber.replace(wrongNumber.find("\r\n2\r\n\"&H") + 2, 1, "RTS");
    CwRecord other;
    EXPECT_FALSE(ReadCwRecord(wrongNumber, other));
    EXPECT_EQ(other.txtSpace, "-4");
    EXPECT_EQ(other.gCWKeying, 0);
    EXPECT_EQ(other.Text14, "&H378");
}

TEST(CwRecord, WhatNoReaderTakesIsNotWritten) {
    CwRecord record = WholeRecord();
    record.Text1 = std::string("A\"B\r\nC\0D\xE9", 9);
    CwRecord read;
    EXPECT_TRUE(ReadCwRecord(WriteCwRecord(record), read));
    EXPECT_EQ(read.Text1, "ABCD\xE9");
}

TEST(CwRecord, LongMessageIsKept) {
    CwRecord record = WholeRecord();
    record.Text13 = std::string(10'000, 'E');
    CwRecord read;
    EXPECT_TRUE(ReadCwRecord(WriteCwRecord(record), read));
    EXPECT_EQ(read, record);
}

}  // namespace
}  // namespace tallyhut
