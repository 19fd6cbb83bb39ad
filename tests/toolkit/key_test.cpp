#include "toolkit/key.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyhut {

static std::ostream& operator<<(std::ostream& out, const Key& key) {
    return out << "{" << key.code << ", " << key.shift << ", " << key.character << "}";
}

namespace {

TEST(KeyForCharacter, EveryCharacterIsTypedAsItself) {
    for (int character = ' '; character <= 0xFF; ++character) {
        EXPECT_EQ(KeyForCharacter(static_cast<unsigned char>(character)).character, character);
    }
}

TEST(KeyForCharacter, CodeAndShiftAreThoseOfTheKeyboard) {
    const struct {
        unsigned char character;
        Key key;
    } rows[] = {
        {'a', {'A', 0, 'a'}},
        {'z', {'Z', 0, 'z'}},
        {'A', {'A', kShift, 'A'}},
        {'Z', {'Z', kShift, 'Z'}},
        {'0', {'0', 0, '0'}},
        {'9', {'9', 0, '9'}},
        {')', {'0', kShift, ')'}},
        {'(', {'9', kShift, '('}},
        {'!', {'1', kShift, '!'}},
        {' ', {32, 0, ' '}},
        {8, {8, 0, 8}},
        {9, {9, 0, 9}},
        {13, {13, 0, 13}},
        {27, {27, 0, 27}},
        {';', {186, 0, ';'}},
        {':', {186, kShift, ':'}},
        {'=', {187, 0, '='}},
        {'+', {187, kShift, '+'}},
        {',', {188, 0, ','}},
        {'-', {189, 0, '-'}},
        {'.', {190, 0, '.'}},
        {'/', {191, 0, '/'}},
        {'?', {191, kShift, '?'}},
        {'`', {192, 0, '`'}},
        {'[', {219, 0, '['}},
        {'\\', {220, 0, '\\'}},
        {']', {221, 0, ']'}},
        {'"', {222, kShift, '"'}},
        {0xE9, {0, 0, 0xE9}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(KeyForCharacter(row.character), row.key) << "character " << static_cast<int>(row.character);
    }
}

TEST(KeyByName, NamesAndModifiersGiveCodeShiftAndCharacter) {
    const struct {
        std::string_view name;
        Key key;
    } rows[] = {
        {"Backspace", {8, 0, 8}},
        {"Tab", {9, 0, 9}},
        {"Shift+Tab", {9, kShift, 9}},
        {"Enter", {13, 0, 13}},
        {"Esc", {27, 0, 27}},
        {"Space", {32, 0, 32}},
        {"PageUp", {33, 0, 0}},
        {"PageDown", {34, 0, 0}},
        {"End", {35, 0, 0}},
        {"Home", {36, 0, 0}},
        {"Left", {37, 0, 0}},
        {"Up", {38, 0, 0}},
        {"Right", {39, 0, 0}},
        {"Down", {40, 0, 0}},
        {"Insert", {45, 0, 0}},
        {"Delete", {46, 0, 0}},
        {"Shift+Delete", {46, kShift, 0}},
        {"F1", {112, 0, 0}},
        {"F2", {113, 0, 0}},
        {"F9", {120, 0, 0}},
        {"F10", {121, 0, 0}},
        {"F11", {122, 0, 0}},
        {"F12", {123, 0, 0}},
        {"Ctrl+F1", {112, kCtrl, 0}},
        {"A", {'A', kShift, 'A'}},
        {"a", {'A', 0, 'a'}},
        {"7", {'7', 0, '7'}},
        {"/", {191, 0, '/'}},
        {"Ctrl+W", {'W', kCtrl, 23}},
        {"Ctrl+w", {'W', kCtrl, 23}},
        {"Alt+C", {'C', kAlt, 0}},
        {"Alt+5", {'5', kAlt, 0}},
        {"Ctrl+Shift+C", {'C', kCtrl | kShift, 3}},
        {"Shift+Ctrl+C", {'C', kCtrl | kShift, 3}},
        {"Ctrl+Enter", {13, kCtrl, 0}},
        {"+", {187, kShift, '+'}},
    };
    for (const auto& row : rows) {
        const auto key = KeyByName(row.name);
        ASSERT_TRUE(key) << row.name;
        EXPECT_EQ(*key, row.key) << row.name;
    }
}

TEST(KeyByName, EveryLetterWithCtrlIsOneToTwentySix) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const auto key = KeyByName(std::string{"Ctrl+"} + letter);
        ASSERT_TRUE(key) << letter;
        EXPECT_EQ(key->character, letter - 'A' + 1) << letter;
        EXPECT_EQ(key->code, letter);
    }
}

TEST(KeyByName, OtherNamesAreNoKeys) {
    for (const std::string_view name :
         {"", "enter", "F0", "F13", "Ctrl", "Shift", "Alt", "Ctrl+", "Shift+", "Ctrl+Alt+", "ctrl+W", "AB", "Escape"}) {
        EXPECT_FALSE(KeyByName(name)) << name;
    }
}

TEST(AccessKeyOf, IsTheLetterOrDigitBehindTheFirstSingleAmpersand) {
    const struct {
        std::string_view caption;
        char key;
    } rows[] = {
        {"&Clear", 'C'}, {"E&xit", 'X'}, {"&9 MHz", '9'}, {"Clear", 0},   {"", 0},      {"&", 0},
        {"Save &", 0},   {"R&&D", 0},    {"R&&&D", 'D'},  {"&a &b", 'A'}, {"A & B", 0}, {"&&", 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(AccessKeyOf(row.caption), row.key) << row.caption;
    }
}

}  // namespace
}  // namespace tallyhut
