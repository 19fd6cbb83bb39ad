#include "keying/morse_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tallyhut {
namespace {

/// Dits and dahs as operators write them.
std::string Sound(std::string_view elements) {
    std::string sound;
    std::size_t units = 0;
    for (const char digit : elements) {
        if (digit == '1') {
            ++units;
        } else if (units > 0) {
            sound += units == 1 ? '.' : units == 3 ? '-' : '?';
            units = 0;
        }
    }
    return sound;
}

TEST(MorseTable, EveryCharacterSoundsAsItShould) {
    const std::pair<char, const char*> cases[] = {
        {'A', ".-"},     {'B', "-..."},   {'C', "-.-."},   {'D', "-.."},       {'E', "."},     {'F', "..-."},
        {'G', "--."},    {'H', "...."},   {'I', ".."},     {'J', ".---"},      {'K', "-.-"},   {'L', ".-.."},
        {'M', "--"},     {'N', "-."},     {'O', "---"},    {'P', ".--."},      {'Q', "--.-"},  {'R', ".-."},
        {'S', "..."},    {'T', "-"},      {'U', "..-"},    {'V', "...-"},      {'W', ".--"},   {'X', "-..-"},
        {'Y', "-.--"},   {'Z', "--.."},   {'0', "-----"},  {'1', ".----"},     {'2', "..---"}, {'3', "...--"},
        {'4', "....-"},  {'5', "....."},  {'6', "-...."},  {'7', "--..."},     {'8', "---.."}, {'9', "----."},
        {'.', ".-.-.-"}, {',', "--..--"}, {'?', "..--.."}, {'/', "-..-."},     {'-', "-...-"}, {'[', ".-.-."},
        {']', "...-.-"}, {';', "-.--."},  {'=', "-...-"},  {'\\', "-.-..-.."},
    };
    for (const auto& [character, sound] : cases) {
        EXPECT_EQ(Sound(ElementString(character)), sound) << character;
        EXPECT_TRUE(ElementString(character).ends_with("000")) << character;
        EXPECT_FALSE(ElementString(character).ends_with("0000")) << character;
    }
    EXPECT_EQ(std::size(cases) + 1, kCwTable.size()) << "and the blank";
}

TEST(MorseTable, BlankIsEightUnitsOfSilence) {
    EXPECT_EQ(ElementString(' '), "00000000");
}

TEST(MorseTable, SmallLettersAreSentAsCapitals) {
    EXPECT_EQ(ElementString('e'), "1000");
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        EXPECT_EQ(ElementString(letter), ElementString(static_cast<char>(letter - 'a' + 'A'))) << letter;
    }
}

TEST(MorseTable, HyphenIsTheDoubleDash) {
    EXPECT_EQ(ElementString('-'), ElementString('='));
}

TEST(MorseTable, UnknownCharactersHaveNoElements) {
    for (int code = 0; code <= 0xFF; ++code) {
        const char character = static_cast<char>(code);
        const bool isKnown =
            code != 0 && code < 0x80 &&
            std::string_view{" ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.,?/-[];\\="}.find(
                character) != std::string_view::npos;
        EXPECT_EQ(ElementString(character).empty(), !isKnown) << code;
    }
}

}  // namespace
}  // namespace tallyhut
