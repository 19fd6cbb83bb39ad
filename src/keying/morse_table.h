#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyhut {

/// How one character is keyed. Each digit is one unit of 1200 / WPM milliseconds: '1' key down, '0' key up. A dit is
/// "10", a dah "1110"; the two units behind the last element make the gap between letters three.
struct CwElement {
    char character;
    std::string_view elements;
};

/// The blank is eight units, four more at a word's end than the standard: operators set their speed by it.
inline constexpr std::array kCwTable{
    CwElement{' ', "00000000"},
    CwElement{'A', "10111000"},
    CwElement{'B', "111010101000"},
    CwElement{'C', "11101011101000"},
    CwElement{'D', "1110101000"},
    CwElement{'E', "1000"},
    CwElement{'F', "101011101000"},
    CwElement{'G', "111011101000"},
    CwElement{'H', "1010101000"},
    CwElement{'I', "101000"},
    CwElement{'J', "1011101110111000"},
    CwElement{'K', "111010111000"},
    CwElement{'L', "101110101000"},
    CwElement{'M', "1110111000"},
    CwElement{'N', "11101000"},
    CwElement{'O', "11101110111000"},
    CwElement{'P', "10111011101000"},
    CwElement{'Q', "1110111010111000"},
    CwElement{'R', "1011101000"},
    CwElement{'S', "10101000"},
    CwElement{'T', "111000"},
    CwElement{'U', "1010111000"},
    CwElement{'V', "101010111000"},
    CwElement{'W', "101110111000"},
    CwElement{'X', "11101010111000"},
    CwElement{'Y', "1110101110111000"},
    CwElement{'Z', "11101110101000"},
    CwElement{'0', "1110111011101110111000"},
    CwElement{'1', "10111011101110111000"},
    CwElement{'2', "101011101110111000"},
    CwElement{'3', "1010101110111000"},
    CwElement{'4', "10101010111000"},
    CwElement{'5', "101010101000"},
    CwElement{'6', "11101010101000"},
    CwElement{'7', "1110111010101000"},
    CwElement{'8', "111011101110101000"},
    CwElement{'9', "11101110111011101000"},
    CwElement{'.', "10111010111010111000"},
    CwElement{',', "1110111010101110111000"},
    CwElement{'?', "101011101110101000"},
    CwElement{'/', "1110101011101000"},
    CwElement{'-', "1110101010111000"},           // the double dash, which is what operators mean by it
    CwElement{'[', "1011101011101000"},           // AR
    CwElement{']', "101010111010111000"},         // SK
    CwElement{';', "111010111011101000"},         // KN
    CwElement{'\\', "111010111010101110101000"},  // CL
    CwElement{'=', "1110101010111000"},           // BT
};

/// 4 to 24 digits; empty for a character that has no row, which is no error: nothing is keyed and no time passes. Small
/// letters are sent as capitals.
constexpr std::string_view ElementString(char character) {
    const bool isSmall = character >= 'a' && character <= 'z';
    const char capital = isSmall ? static_cast<char>(character - 'a' + 'A') : character;
    const auto* const row = std::ranges::find(kCwTable, capital, &CwElement::character);
    return row == kCwTable.end() ? std::string_view{} : row->elements;
}

static_assert(std::ranges::all_of(kCwTable, [](const CwElement& row) { return row.elements.ends_with("000"); }),
              "every character ends with the gap between letters, and with the key up");
static_assert(std::ranges::all_of(kCwTable,
                                  [](const CwElement& row) { return ElementString(row.character) == row.elements; }),
              "no character has two rows");

}  // namespace tallyhut
