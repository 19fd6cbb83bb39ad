#include "support/told_names.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace tallyhut {
namespace {

using Value = ToldNames::Value;

TEST(ToldNames, AVariableIsReadWhenItIsAskedFor) {
    ToldNames told;
    std::string band = "40";
    told.Add("gBand", band);
    EXPECT_EQ(told.Find("gBand"), Value{"40"});
    band = "80";
    EXPECT_EQ(told.Find("gBand"), Value{"80"});
}

TEST(ToldNames, NumbersOfEachKindAreToldAsTheyPrint) {
    ToldNames told;
    const std::uint8_t byte = 255;
    const std::int16_t word = -32'768;
    const std::int32_t colour = 16'711'680;
    const float frequency = 14.2F;
    const double shift = 0.1;
    const bool flag = true;
    told.Add("byte", byte);
    told.Add("word", word);
    told.Add("colour", colour);
    told.Add("frequency", frequency);
    told.Add("shift", shift);
    told.Add("flag", flag);
    EXPECT_EQ(told.Find("byte"), Value{255.0});
    EXPECT_EQ(told.Find("word"), Value{-32'768.0});
    EXPECT_EQ(told.Find("colour"), Value{16'711'680.0});
    EXPECT_EQ(told.Find("frequency"), Value{14.2}) << "and not the digits behind those of a single float";
    EXPECT_EQ(told.Find("shift"), Value{0.1});
    EXPECT_EQ(told.Find("flag"), Value{1.0});
}

TEST(ToldNames, AMomentIsItsTextAndEmptyBeforeItWasSet) {
    ToldNames told;
    DateTime logOn;
    told.Add("gLogOnAt", logOn);
    EXPECT_EQ(told.Find("gLogOnAt"), Value{""});
    logOn = {2026, 11, 7, 21, 4, 33};
    EXPECT_EQ(told.Find("gLogOnAt"), Value{"2026-11-07T21:04:33"});
}

TEST(ToldNames, ATableAnswersWithinItsBoundsAlone) {
    ToldNames told;
    const std::array worked{7, 8, 9};
    told.AddTable("SectionQsos", [&worked](int i) {
        return i >= 1 && i <= 3 ? std::optional{ToldNames::Told(worked.at(static_cast<std::size_t>(i - 1)))}
                                : std::nullopt;
    });
    EXPECT_EQ(told.Find("SectionQsos(1)"), Value{7.0});
    EXPECT_EQ(told.Find("SectionQsos(3)"), Value{9.0});
    EXPECT_EQ(told.Find("SectionQsos(0)"), std::nullopt);
    EXPECT_EQ(told.Find("SectionQsos(4)"), std::nullopt);
}

TEST(ToldNames, AVariableHasNoIndexAndATableHasOne) {
    ToldNames told;
    const int count = 3;
    told.Add("gContactCount", count);
    told.AddTable("Call", [](int) { return Value{"W1AW"}; });
    EXPECT_EQ(told.Find("gContactCount(1)"), std::nullopt);
    EXPECT_EQ(told.Find("Call"), std::nullopt);
    EXPECT_EQ(told.Find("gcontactcount"), std::nullopt);
    EXPECT_EQ(told.Find(""), std::nullopt);
}

TEST(ToldNames, AnIndexStandsInBracketsAtTheEndAndIsAWholeNumber) {
    EXPECT_EQ(SplitIndex("Label10(16)").name, "Label10");
    EXPECT_EQ(SplitIndex("Label10(16)").index, 16);
    EXPECT_EQ(SplitIndex("Label10(0)").index, 0);
    for (const std::string_view none : {"Label10", "Label10(", "Label10()", "Label10(x)", "Label10(-1)", "Label10(1.5)",
                                        "Label10(1) ", "Label10(1234567)", "(1", ""}) {
        EXPECT_EQ(SplitIndex(none).name, none);
        EXPECT_EQ(SplitIndex(none).index, -1) << none;
    }
}

}  // namespace
}  // namespace tallyhut
