#include "values/hex.h"

#include <gtest/gtest.h>

#include <functional>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

std::string MessageOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const ValueError& error) {
        return error.what();
    }
    return "nothing was refused";
}

TEST(Hex, BytesBecomeTwoUpperCaseDigitsEach) {
    EXPECT_EQ(BytesToHexText(""), "");
    EXPECT_EQ(BytesToHexText("\xFE\xFE\xE0\x64\x03"), "FEFEE06403");
    EXPECT_EQ(BytesToHexText("\0\n\x7F\x80"s), "000A7F80");
}

TEST(Hex, DumpHasABlankBehindEachPair) {
    EXPECT_EQ(BytesToHexDump(""), "");
    EXPECT_EQ(BytesToHexDump("\xFE\0\x03"s), "FE 00 03 ");
}

TEST(Hex, EveryThirdCharacterBeginsASpacedPair) {
    const std::pair<std::string_view, std::string> cases[] = {
        {"", ""},
        {"FE FE 64 E0 03 FD", "\xFE\xFE\x64\xE0\x03\xFD"},
        {"00 00 00 02 10", "\0\0\0\x02\x10"s},
        {"FE FE ", "\xFE\xFE"},
        {"3F 41 0", "\x3F\x41\0"s},
        {"fe,03", "\xFE\x03"},
        {"FEFE6403", "\xFE\xE6\x03"},  // without blanks the walk loses step: that is how it goes out
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(SpacedHexToBytes(text), bytes) << text;
    }
    for (const std::string_view text : {"GG", " FE", "FE  03", "FE 0x 03", "-1"}) {
        EXPECT_THROW(SpacedHexToBytes(text), ValueError) << text;
    }
}

TEST(Hex, PairsBecomeBytes) {
    EXPECT_EQ(HexToBytes(""), "");
    EXPECT_EQ(HexToBytes("FEFE"), "\xFE\xFE");
    EXPECT_EQ(HexToBytes("fe0064"), "\xFE\0\x64"s);
}

TEST(Hex, EveryByteComesBack) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) {
        bytes += static_cast<char>(code);
    }
    EXPECT_EQ(HexToBytes(BytesToHexText(bytes)), bytes);
}

TEST(Hex, RefusesWhatIsNoRowOfPairs) {
    for (const std::string_view text : {"F", "FEF", "FG", "GF", " F", "F ", "FE FE", "-1", "+1", "0x", "FE\n."}) {
        EXPECT_THROW(HexToBytes(text), ValueError) << text;
    }
}

TEST(Hex, NumberIsUnsignedWithThirtyTwoBits) {
    const std::pair<std::string_view, std::uint32_t> cases[] = {
        {"0", 0},
        {"A", 10},
        {"ff", 255},
        {"0378", 0x378},
        {"00D8ACC0", 14'200'000},
        {"7FFFFFFF", 2'147'483'647},
        {"FFFFFFFF", 4'294'967'295},
        {"000000000FF", 255},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(HexNumber(text), number) << text;
        EXPECT_EQ(ParseHexNumber(text), number) << text;
    }
}

TEST(Hex, RefusesWhatIsNoNumber) {
    for (const std::string_view text : {"", " ", "G", "1G", "-1", "+1", " 1", "1 ", "0x1", "&H1", "1.0", "100000000"}) {
        EXPECT_THROW(HexNumber(text), ValueError) << text;
        EXPECT_EQ(ParseHexNumber(text), std::nullopt) << text;
    }
}

TEST(Hex, RefusalNamesTheText) {
    EXPECT_EQ(MessageOf([] { HexNumber("1G"); }), "\"1G\" is no hexadecimal number of 32 bits");
    EXPECT_EQ(MessageOf([] { HexToBytes("FE1G"); }), "\"1G\" is no hexadecimal number of 32 bits");
    EXPECT_EQ(MessageOf([] { HexToBytes("FEF"); }), "\"FEF\" is no row of hexadecimal pairs: a digit is left over");
}

}  // namespace
}  // namespace tallyhut
