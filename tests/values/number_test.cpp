#include "values/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <locale>
#include <random>

#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

std::string MessageOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const ValueError& error) {
        return error.what();
    }
    return "nothing was refused";
}

TEST(Number, PlainTextOfADoubleHasFifteenDigits) {
    const std::pair<double, std::string_view> cases[] = {
        {0.0, "0"},
        {-0.0, "0"},
        {1.0, "1"},
        {-5.0, "-5"},
        {14.2, "14.2"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {-5.5, "-5.5"},
        {100.0, "100"},
        {0.1 + 0.2, "0.3"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {14.2 + static_cast<double>(0.001F), "14.2010000000475"},
        {0.0001, "0.0001"},
        {0.0000001, "0.0000001"},
        {0.00000012345, "0.00000012345"},
        {0.00000001, "1E-08"},
        {1.5e-10, "1.5E-10"},
        {16777216.0, "16777216"},
        {2147483647.0, "2147483647"},
        {999999999999999.0, "999999999999999"},
        {999999999999999.9, "1E+15"},
        {1e15, "1E+15"},
        {-1.25e15, "-1.25E+15"},
        {1e20, "1E+20"},
        {1e100, "1E+100"},
        {1.7976931348623157e308, "1.79769313486232E+308"},
        {5e-324, "4.94065645841247E-324"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(PlainText(value), text);
    }
}

TEST(Number, PlainTextOfAFloatHasSevenDigits) {
    const std::pair<float, std::string_view> cases[] = {
        {0.0F, "0"},
        {-0.0F, "0"},
        {14.2F, "14.2"},
        {-14.2F, "-14.2"},
        {7.0251F, "7.0251"},
        {28.12345F, "28.12345"},
        {1.0F / 3, "0.3333333"},
        {0.1F, "0.1"},
        {3600.5F, "3600.5"},
        {9999999.0F, "9999999"},
        {16777216.0F, "16777220"},
        {0.00005F, "0.00005"},
        {1e-9F, "1E-09"},
        {1e14F, "100000000000000"},
        {1e15F, "1E+15"},
        {1e20F, "1E+20"},
        {std::numeric_limits<float>::max(), "3.402823E+38"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(PlainText(value), text);
    }
}

TEST(Number, PlainTextTakesEveryIntegerType) {
    EXPECT_EQ(PlainText(137), "137");
    EXPECT_EQ(PlainText(-137L), "-137");
    EXPECT_EQ(PlainText(std::uint8_t{255}), "255");
    EXPECT_EQ(PlainText(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(PlainText(std::size_t{11'000}), "11000");
    EXPECT_EQ(PlainText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(PlainText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(PlainText(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(Number, PlainTextRefusesWhatIsNotFinite) {
    for (const double value : {kInfinity, -kInfinity, kNoNumber}) {
        EXPECT_THROW(PlainText(value), ValueError) << value;
        EXPECT_THROW(PlainText(static_cast<float>(value)), ValueError) << value;
        EXPECT_THROW(NumberForm(value), ValueError) << value;
    }
}

TEST(Number, NumberFormHasABlankInFrontWhenNotNegative) {
    EXPECT_EQ(NumberForm(137), " 137");
    EXPECT_EQ(NumberForm(0), " 0");
    EXPECT_EQ(NumberForm(-1), "-1");
    EXPECT_EQ(NumberForm(std::uint8_t{83}), " 83");
    EXPECT_EQ(NumberForm(std::int64_t{-4'000'000'000}), "-4000000000");
    EXPECT_EQ(NumberForm(std::size_t{12}), " 12");
    EXPECT_EQ(NumberForm(14.2), " 14.2");
    EXPECT_EQ(NumberForm(14.2F), " 14.2");
    EXPECT_EQ(NumberForm(-0.25F), "-0.25");
    EXPECT_EQ(NumberForm(-0.0), " 0");
}

struct NumericCase {
    std::string_view text;
    double value;
};

constexpr NumericCase kNumeric[] = {
    {"0", 0},
    {"137", 137},
    {" 137", 137},
    {"  137  ", 137},
    {"+5", 5},
    {"-5", -5},
    {" -5.5 ", -5.5},
    {"14.2", 14.2},
    {"14.", 14},
    {".5", 0.5},
    {"-.5", -0.5},
    {"007", 7},
    {"1E3", 1000},
    {"1e+3", 1000},
    {"1.5E-3", 0.0015},
    {".5e1", 5},
    {"5.E1", 50},
    {"1E+20", 1e20},
    {"&H378", 888},
    {"&h278", 632},
    {" &HFFFF ", 65535},
    {"&HFFFFFFFF", 4294967295.0},
    {"1E-400", 0},
    {"-1E-400", 0},
    {"0.00000000001E-320", 0},
    {"1E-999999999999999999999", 0},
    {"0E999999999999999999999", 0},
    {"179769313486231570000E288", 1.7976931348623157e308},
    {"123456789012345678901234567890", 123456789012345678901234567890.0},
};

constexpr std::string_view kNotNumeric[] = {
    "",     " ",     ".",     "+",           "-",      "-.",    "E",
    "E5",   ".E5",   "1E",    "1E+",         "1E5.5",  "1EE5",  "1.2.3",
    "1..2", "--5",   "+-5",   "- 5",         "5-",     "1 2",   "1,000",
    "12A",  "A12",   "0x10",  "&H",          "&",      "&HG",   "-&H1",
    "&H-1", "& H1",  "&H1.5", "&H100000000", "1D3",    "\t5",   "5\r\n",
    "5\t",  "inf",   "nan",   "INF",         "NAN",    "1E400", "-1E400",
    "1/2",  "21:30", "$5",    "5%",          "W1AW/3", "\xB2",  "9E999999999999999999999",
};

TEST(Number, NumericTextGivesItsValue) {
    for (const auto& row : kNumeric) {
        EXPECT_TRUE(IsNumeric(row.text)) << row.text;
        EXPECT_EQ(TrimmedNumber(row.text), row.value) << row.text;
    }
}

TEST(Number, OtherTextIsRefused) {
    for (const std::string_view text : kNotNumeric) {
        EXPECT_FALSE(IsNumeric(text)) << '[' << text << ']';
        EXPECT_EQ(ParseNumber(text), std::nullopt) << '[' << text << ']';
        EXPECT_THROW(TrimmedNumber(text), ValueError) << '[' << text << ']';
    }
    EXPECT_FALSE(IsNumeric(std::string_view("5\0", 2)));
}

TEST(Number, RefusalNamesTheText) {
    EXPECT_EQ(MessageOf([] { TrimmedNumber(" 12A"); }), "\" 12A\" is not numeric");
    EXPECT_EQ(MessageOf([] { TrimmedNumber(""); }), "\"\" is not numeric");
}

TEST(Number, LongRunsOfDigitsDoNotHideTheSizeOfTheNumber) {
    const std::string zeros(30'000, '0');
    EXPECT_EQ(TrimmedNumber(zeros + "7"), 7);
    EXPECT_EQ(TrimmedNumber("." + zeros + "7"), 0);
    EXPECT_EQ(TrimmedNumber("." + zeros + "7E30001"), 7);
    EXPECT_EQ(TrimmedNumber("7" + zeros + "E-30000"), 7);
    EXPECT_FALSE(IsNumeric("7" + zeros));
    EXPECT_FALSE(IsNumeric("7" + zeros + "E-20000"));
}

TEST(Number, NumericIsExactlyWhatTheReadingTakes) {
    std::mt19937 random{20261107};
    constexpr std::string_view kCharacters = " +-..0123456789EeHh&F,";
    std::uniform_int_distribution<std::size_t> anyCharacter{0, kCharacters.size() - 1};
    int numeric = 0;
    for (int round = 0; round < 200'000; ++round) {
        std::string text;
        for (std::size_t size = random() % 8; text.size() < size;) {
            text += kCharacters[anyCharacter(random)];
        }
        bool taken = true;
        try {
            TrimmedNumber(text);
        } catch (const ValueError&) {
            taken = false;
        }
        ASSERT_EQ(IsNumeric(text), taken) << '[' << text << ']';
        numeric += taken ? 1 : 0;
    }
    EXPECT_GT(numeric, 10'000);  // the characters are chosen so that both kinds come up
}

TEST(Number, PlainTextReadsBackToItsDigits) {
    std::mt19937_64 random{73};
    std::uniform_real_distribution<double> anyDigits{-1, 1};
    std::uniform_int_distribution<int> anyPower{-300, 300};
    for (int round = 0; round < 20'000; ++round) {
        const double value = anyDigits(random) * std::pow(10.0, anyPower(random));
        const std::string text = PlainText(value);
        ASSERT_TRUE(IsNumeric(text)) << text;
        ASSERT_EQ(PlainText(TrimmedNumber(text)), text);
        ASSERT_NEAR(TrimmedNumber(text), value, std::fabs(value) * 1e-14) << text;
    }
}

TEST(Number, HalvesGoToTheEvenNeighbour) {
    const std::pair<double, double> cases[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {1e18, 1e18},
    };
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    }
}

TEST(Number, WholeNumbersRoundHalvesToEvenUpToTheirRange) {
    EXPECT_EQ(ToByte(0), 0);
    EXPECT_EQ(ToByte(2.5), 2);
    EXPECT_EQ(ToByte(3.5), 4);
    EXPECT_EQ(ToByte(-0.5), 0);
    EXPECT_EQ(ToByte(255.4999), 255);
    EXPECT_EQ(ToInt16(-2.5), -2);
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt32(2147483647.4), 2147483647);
    EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(ToInt32(16711680), 0xFF0000);
    EXPECT_EQ(ToInt32(7.0251F * 1e6), 7'025'100);
}

TEST(Number, WholeNumbersBeyondTheirRangeAreRefused) {
    for (const double value : {-0.5001, -1.0, 255.5, 256.0, 1e300, kInfinity, -kInfinity, kNoNumber}) {
        EXPECT_THROW(ToByte(value), ValueError) << value;
    }
    for (const double value : {-32768.5001, 32767.5, 40000.0, -1e300, kInfinity, -kInfinity, kNoNumber}) {
        EXPECT_THROW(ToInt16(value), ValueError) << value;
    }
    for (const double value : {-2147483648.51, 2147483647.5, 4294967295.0, 1e300, kInfinity, -kInfinity, kNoNumber}) {
        EXPECT_THROW(ToInt32(value), ValueError) << value;
    }
}

TEST(Number, RangeFailureNamesTheValueAndTheRange) {
    EXPECT_EQ(MessageOf([] { ToByte(256); }), "256 is no whole number from 0 to 255");
    EXPECT_EQ(MessageOf([] { ToInt16(-40000.5); }), "-40000.5 is no whole number from -32768 to 32767");
    EXPECT_EQ(MessageOf([] { ToInt32(kNoNumber); }), "the value is no whole number from -2147483648 to 2147483647");
}

struct RoundedCase {
    int decimals;
    double value;
    double rounded;
};

TEST(Number, RoundedToLooksAtTheDecimalText) {
    const RoundedCase cases[] = {
        {0, 2.5, 2},
        {0, 3.5, 4},
        {0, 0.5, 0},
        {0, 0.4, 0},
        {0, 0.6, 1},
        {2, 2.665, 2.66},
        {2, 2.675, 2.68},
        {2, -2.675, -2.68},
        {2, 0.005, 0},
        {2, 0.015, 0.02},
        {2, 0.0005, 0},
        {3, 14.0125, 14.012},
        {3, 14.0135, 14.014},
        {3, 14.07499999, 14.075},
        {3, 9.9996, 10},
        {1, 0.96, 1},
        {3, 14, 14},
        {5, 14.2, 14.2},
        {5, 1e20, 1e20},
        {2, 1234567890123456.0, 1234567890123456.0},
        {1, 0, 0},
        {1, -0.04, 0},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(RoundedTo(row.decimals, row.value), row.rounded) << row.value << " to " << row.decimals;
    }
}

TEST(Number, RoundedToRefusesWhatIsNotFinite) {
    for (const double value : {kInfinity, -kInfinity, kNoNumber}) {
        EXPECT_THROW(RoundedTo(3, value), ValueError) << value;
    }
}

TEST(Number, RoundingTwiceChangesNothing) {
    std::mt19937_64 random{88};
    std::uniform_real_distribution<double> anyFrequency{1.8, 30};
    for (int round = 0; round < 20'000; ++round) {
        const double value = anyFrequency(random);
        for (int decimals = 0; decimals <= 6; ++decimals) {
            const double rounded = RoundedTo(decimals, value);
            ASSERT_EQ(RoundedTo(decimals, rounded), rounded) << value << " to " << decimals;
            ASSERT_LE(std::fabs(rounded - value), 0.5000001 * std::pow(10.0, -decimals)) << value << " to " << decimals;
        }
    }
}

TEST(Number, CustomsOfTheMachineDoNotMatter) {
    struct CommaForPoint : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale{std::locale{}, new CommaForPoint});
    const std::string text = PlainText(12345.5) + NumberForm(-12345);
    const double number = TrimmedNumber("14.25");
    std::locale::global(before);
    EXPECT_EQ(text, "12345.5-12345");
    EXPECT_EQ(number, 14.25);
}

}  // namespace
}  // namespace tallyhut
