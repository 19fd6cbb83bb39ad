#include <utility>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

/// A form with a single field as the test wants it, focused.
struct TextBoxTest : ToolkitTest {
    Form form{desk, "Form", "", {.dialog = false}};

    void Begin(TextBox& box, std::string_view text) {
        box.SetText(text);
        Open(form);
        RecordChange(box);
        ASSERT_TRUE(box.HasFocus());
    }
};

/// The text with the selection in brackets, or a bar where the caret is: "ab[cd]e", "ab|cde".
std::string Shown(const TextBox& box) {
    std::string text = box.Text();
    if (box.SelLength() == 0) {
        return text.insert(static_cast<std::size_t>(box.SelStart()), "|");
    }
    text.insert(static_cast<std::size_t>(box.SelStart() + box.SelLength()), "]");
    return text.insert(static_cast<std::size_t>(box.SelStart()), "[");
}

TEST_F(TextBoxTest, TextSetFromCodePutsTheCaretAtTheStart) {
    TextBox box{form, "box", {}};
    box.SetText("abc");
    box.Select(1, 2);
    box.SetText("wxyz");
    EXPECT_EQ(Shown(box), "|wxyz");
}

TEST_F(TextBoxTest, TextSetFromCodeIsCutToTheMaximumLength) {
    TextBox box{form, "box", {.maxLength = 4}};
    box.SetText("W1AWX");
    EXPECT_EQ(box.Text(), "W1AW");
}

TEST_F(TextBoxTest, TextSetFromCodeRunsChangeOnlyIfItDiffers) {
    TextBox box{form, "box", {.maxLength = 2}};
    RecordChange(box);
    box.SetText("ab");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.SetText("ab");
    box.SetText("abc");  // the same once it is cut
    EXPECT_EQ(TakeEvents(), "");
    box.SetText("");
    EXPECT_EQ(TakeEvents(), "box.Change");
}

TEST_F(TextBoxTest, ChangeSeesTheNewTextAndCaret) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    box.Change = [&] { Note(Shown(box)); };
    Type("ab");
    box.SetText("xy");
    box.Paste("1");
    EXPECT_EQ(TakeEvents(), "a|, ab|, |xy, 1|xy");
}

TEST_F(TextBoxTest, SelectionStaysWithinTheText) {
    const struct {
        int start, length;
        std::string_view shown;
    } rows[] = {{1, 2, "a[bc]d"}, {-3, 2, "[ab]cd"}, {9, 1, "abcd|"}, {2, 99, "ab[cd]"},
                {1, -2, "a|bcd"}, {4, 0, "abcd|"},   {0, 4, "[abcd]"}};
    TextBox box{form, "box", {}};
    box.SetText("abcd");
    for (const auto& row : rows) {
        box.Select(row.start, row.length);
        EXPECT_EQ(Shown(box), row.shown);
    }
    box.Select(1, 2);
    EXPECT_EQ(box.SelectedText(), "bc");
}

/// What a key does to a text with a caret or a selection.
struct EditRow {
    std::string_view before;  ///< as Shown gives it
    std::string_view keys;    ///< names with blanks between
    std::string_view after;
};

void SetShown(TextBox& box, std::string_view shown) {
    std::string text{shown};
    const std::size_t begin = text.find_first_of("[|");
    text.erase(begin, 1);
    std::size_t end = text.find(']');
    if (end == std::string::npos) {
        end = begin;
    } else {
        text.erase(end, 1);
    }
    box.SetText(text);
    box.Select(static_cast<int>(begin), static_cast<int>(end - begin));
}

void PressAll(ToolkitTest& test, std::string_view keys) {
    while (!keys.empty()) {
        const std::size_t blank = std::min(keys.find(' '), keys.size());
        test.Press(keys.substr(0, blank));
        keys.remove_prefix(std::min(blank + 1, keys.size()));
    }
}

TEST_F(TextBoxTest, KeysEditALine) {
    TextBox box{form, "box", {.maxLength = 6}};
    Begin(box, "");
    const EditRow rows[] = {
        {"|", "a b", "ab|"},
        {"a|c", "b", "ab|c"},
        {"a[bc]d", "x", "ax|d"},
        {"abcdef|", "x", "abcdef|"},
        {"abc|def", "x", "abc|def"},
        {"abc[d]ef", "x", "abcx|ef"},
        {"|ab", "Backspace", "|ab"},
        {"ab|c", "Backspace", "a|c"},
        {"a[bc]d", "Backspace", "a|d"},
        {"ab|", "Delete", "ab|"},
        {"a|bc", "Delete", "a|c"},
        {"a[bc]d", "Delete", "a|d"},
        {"ab|cd", "Home", "|abcd"},
        {"ab|cd", "End", "abcd|"},
        {"ab|cd", "Left", "a|bcd"},
        {"ab|cd", "Right", "abc|d"},
        {"|ab", "Left", "|ab"},
        {"ab|", "Right", "ab|"},
        {"a[bc]d", "Left", "a|bcd"},
        {"a[bc]d", "Right", "abc|d"},
        {"a[bc]d", "Home", "|abcd"},
        {"a[bc]d", "End", "abcd|"},
        {"ab|cd", "Shift+Left", "a[b]cd"},
        {"ab|cd", "Shift+Right Shift+Right", "ab[cd]"},
        {"ab|cd", "Shift+Right Shift+Left", "ab|cd"},
        {"ab|cd", "Shift+Right Shift+Left Shift+Left", "a[b]cd"},
        {"ab|cd", "Shift+Home", "[ab]cd"},
        {"ab|cd", "Shift+Home Shift+End", "ab[cd]"},
        {"ab|cd", "Shift+Left Right", "ab|cd"},
        {"ab|cd", "Shift+Left x", "ax|cd"},
        {"ab|cd", "Up", "ab|cd"},
        {"ab|cd", "Down", "ab|cd"},
        {"ab|cd", "Ctrl+A", "[abcd]"},
        {"ab|cd", "Ctrl+W", "ab|cd"},
        {"ab|cd", "Space", "ab |cd"},
    };
    for (const EditRow& row : rows) {
        SetShown(box, row.before);
        PressAll(*this, row.keys);
        EXPECT_EQ(Shown(box), row.after) << row.before << " and " << row.keys;
    }
}

TEST_F(TextBoxTest, KeyRunsChangeOnceAndOnlyIfTheTextChanged) {
    TextBox box{form, "box", {.maxLength = 3}};
    Begin(box, "ab");
    Press("Backspace");
    Press("Left");
    EXPECT_EQ(TakeEvents(), "");
    Press("x");
    EXPECT_EQ(TakeEvents(), "box.Change");
    Press("y");  // full
    EXPECT_EQ(TakeEvents(), "");
    Press("Delete");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.Select(0, 1);
    Press("x");  // the same letter again
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(TextBoxTest, CharactersOfLatinOneAreTypedAndOthersDropped) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    for (const int character : {0xE9, 0xFF, 0x100, 0x20AC, 0x20, 0x1F, 1000000}) {
        desk.PostKey({.code = 0, .shift = 0, .character = character});
    }
    desk.RunPending();
    EXPECT_EQ(box.Text(), "\xE9\xFF ");
}

TEST_F(TextBoxTest, LockedFieldIsReadNotEdited) {
    TextBox box{form, "box", {.locked = true}};
    Begin(box, "abc");
    clipboard.text = "zz";
    box.Select(1, 1);
    PressAll(*this, "x Backspace Delete Ctrl+V Shift+Insert Ctrl+X");
    EXPECT_EQ(Shown(box), "a[b]c");
    EXPECT_EQ(clipboard.text, "b");
    EXPECT_EQ(TakeEvents(), "");
    Press("End");
    EXPECT_EQ(Shown(box), "abc|");
    box.SetText("from code");
    EXPECT_EQ(box.Text(), "from code");
}

TEST_F(TextBoxTest, FocusChangesNeitherCaretNorSelection) {
    TextBox box{form, "box", {.tabIndex = 1}};
    TextBox other{form, "other", {.tabIndex = 2}};
    Begin(box, "abcd");
    box.Select(1, 2);
    Press("Tab");
    EXPECT_TRUE(other.HasFocus());
    Press("Tab");
    EXPECT_TRUE(box.HasFocus());
    Click(other);
    Click(box);
    EXPECT_EQ(Shown(box), "a[bc]d");
}

TEST_F(TextBoxTest, PasteTakesWhatTheFieldTakes) {
    const struct {
        std::string_view what;
        TextBoxDesign design;
        std::string_view before;
        std::string_view pasted;
        std::string_view after;
    } rows[] = {
        {"inserts, caret behind", {}, "a|d", "bc", "abc|d"},
        {"replaces the selection", {}, "a[bc]d", "xyz", "axyz|d"},
        {"cut to the maximum length", {.maxLength = 5}, "a|b", "wxyz", "awxy|b"},
        {"room of the selection counts", {.maxLength = 4}, "a[bc]d", "wxyz", "awx|d"},
        {"full", {.maxLength = 2}, "a|b", "x", "a|b"},
        {"drops line ends", {}, "|", "one\r\ntwo\n", "onetwo|"},
        {"drops what it refuses", {.refusesPaste = "\""}, "|", "\"W1AW\"", "W1AW|"},
        {"keeps quotes where not told", {}, "|", "\"a\"", "\"a\"|"},
        {"dropped characters do not count", {.maxLength = 3, .refusesPaste = "\""}, "|", "\"a\"b\nc", "abc|"},
        {"drops what cannot be seen", {}, "|", "a\tb\x01", "ab|"},
        {"nothing left keeps the selection", {.refusesPaste = "\""}, "a[b]c", "\"", "a[b]c"},
        {"line ends stand in many lines", {.multiLine = true}, "|", "one\r\ntwo", "one\r\ntwo|"},
        {"locked", {.locked = true}, "a|b", "x", "a|b"},
    };
    for (const auto& row : rows) {
        TextBox box{form, "box", row.design};
        SetShown(box, row.before);
        box.Paste(row.pasted);
        EXPECT_EQ(Shown(box), row.after) << row.what;
    }
}

TEST_F(TextBoxTest, PasteRunsChangeAlone) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    RecordKeys(box);
    box.Paste("abc");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.Select(0, 3);
    box.Paste("abc");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(TextBoxTest, ReplacingByPasteLeavesWhatTheFieldTakesAndRunsChangeOnce) {
    TextBox box{form, "box", {.maxLength = 4, .refusesPaste = "\""}};
    Begin(box, "old");
    box.ReplaceByPaste("\"W1AWX");
    EXPECT_EQ(Shown(box), "W1AW|");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.ReplaceByPaste("\"");
    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.ReplaceByPaste("");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(TextBoxTest, ClipboardKeysCopyCutAndPaste) {
    const struct {
        std::string_view keys, shown, clipboard;
    } rows[] = {
        {"Ctrl+C", "a[bc]d", "bc"},          {"Ctrl+X", "a|d", "bc"},
        {"Ctrl+V", "aold|d", "old"},         {"Ctrl+Insert", "a[bc]d", "bc"},
        {"Shift+Delete", "a|d", "bc"},       {"Shift+Insert", "aold|d", "old"},
        {"Ctrl+A Ctrl+C", "[abcd]", "abcd"}, {"Ctrl+X End Ctrl+V", "adbc|", "bc"},
    };
    TextBox box{form, "box", {}};
    Begin(box, "");
    for (const auto& row : rows) {
        clipboard.text = "old";
        SetShown(box, "a[bc]d");
        PressAll(*this, row.keys);
        EXPECT_EQ(Shown(box), row.shown) << row.keys;
        EXPECT_EQ(clipboard.text, row.clipboard) << row.keys;
    }
}

TEST_F(TextBoxTest, SecretTextLeavesItsBoxByNoKey) {
    TextBox word{form, "word", {.maxLength = 60, .secret = true}};
    Begin(word, "");
    for (const char* keys : {"Ctrl+A Ctrl+C", "Ctrl+A Ctrl+X", "Ctrl+A Ctrl+Insert", "Ctrl+A Shift+Delete"}) {
        clipboard.text = "old";
        word.SetText("hush");
        PressAll(*this, keys);
        EXPECT_EQ(clipboard.text, "old") << keys;
        EXPECT_EQ(word.SelectedText(), "") << keys;
    }
    word.SetText("");
    clipboard.text = "hush";
    PressAll(*this, "Ctrl+V");
    EXPECT_EQ(word.Text(), "hush") << "what comes in does";
}

TEST_F(TextBoxTest, NothingOfASecretTextIsLeftInMemory) {
    TextBox word{form, "word", {.maxLength = 60, .secret = true}};
    Begin(word, "");
    const char* memory = word.Text().data();
    const auto left = [&] { return std::string{memory, 30}.find_first_not_of('\0') != std::string::npos; };
    word.SetText("a long enough word to be allocated");
    ASSERT_TRUE(left());
    EXPECT_EQ(word.Text().data(), memory) << "no copy is left behind by growing";
    word.SetText("");
    EXPECT_FALSE(left());
    word.SetText("a long enough word to be allocated");
    PressAll(*this, "Ctrl+A Delete");
    EXPECT_FALSE(left());
    word.SetText("a long enough word to be allocated");
    form.Unload();
    EXPECT_EQ(word.Text(), "");
    EXPECT_FALSE(left());
}

TEST_F(TextBoxTest, NothingSelectedLeavesTheClipboardAndTheText) {
    TextBox box{form, "box", {}};
    Begin(box, "abc");
    clipboard.text = "old";
    PressAll(*this, "Ctrl+C Ctrl+X Ctrl+Insert Shift+Delete");
    EXPECT_EQ(clipboard.text, "old");
    EXPECT_EQ(Shown(box), "|abc");
}

TEST_F(TextBoxTest, KeyPressHandlerMayKeepAPasteAway) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    clipboard.text = "x";
    box.KeyPress = [](int& KeyAscii) { KeyAscii = 0; };
    Press("Ctrl+V");
    EXPECT_EQ(box.Text(), "");
}

TEST_F(TextBoxTest, KeysEditManyLines) {
    TextBox box{form, "box", {.multiLine = true}};
    Begin(box, "");
    const EditRow rows[] = {
        {"ab|cd", "Enter", "ab\r\n|cd"},        {"ab\r\n|cd", "Backspace", "ab|cd"},
        {"ab|\r\ncd", "Delete", "ab|cd"},       {"ab|\r\ncd", "Right", "ab\r\n|cd"},
        {"ab\r\n|cd", "Left", "ab|\r\ncd"},     {"ab\r\n|cd", "Shift+Left", "ab[\r\n]cd"},
        {"abc\r\nd|ef", "Up", "a|bc\r\ndef"},   {"a\r\ndef|", "Up", "a|\r\ndef"},
        {"ab|c\r\ndef", "Down", "abc\r\nde|f"}, {"abc|\r\nd", "Down", "abc\r\nd|"},
        {"a|b\r\ncd", "Up", "a|b\r\ncd"},       {"ab\r\nc|d", "Down", "ab\r\nc|d"},
        {"ab\r\nc|d", "Home", "ab\r\n|cd"},     {"a|b\r\ncd", "End", "ab|\r\ncd"},
        {"|", "a Enter b", "a\r\nb|"},
    };
    for (const EditRow& row : rows) {
        SetShown(box, row.before);
        PressAll(*this, row.keys);
        EXPECT_EQ(Shown(box), row.after) << row.before << " and " << row.keys;
    }
}

/// As Shown, a suggestion in round brackets.
std::string ShownWithSuggestion(const TextBox& box) {
    const bool drawnAsOne = box.State().foreColor == kSuggestion;
    EXPECT_EQ(box.IsSuggested(), drawnAsOne);
    return box.IsSuggested() ? '(' + Shown(box) + ')' : Shown(box);
}

TEST_F(TextBoxTest, WhatTheOperatorDoesFirstIsDoneToTheWholeOfASuggestion) {
    TextBox box{form, "box", {.maxLength = 4}};
    Begin(box, "");
    clipboard.text = "xy";
    const EditRow rows[] = {
        {"", "a", "a|"},        {"", "a b", "ab|"},           {"", "Backspace", "|"},   {"", "Delete", "|"},
        {"", "Ctrl+V", "xy|"},  {"", "Shift+Insert", "xy|"},  {"", "End a", "a|"},      {"", "Right Backspace", "|"},
        {"", "Home", "(|MDC)"}, {"", "Right", "(M|DC)"},      {"", "Ctrl+C", "(|MDC)"}, {"", "Ctrl+X", "(|MDC)"},
        {"", "M", "M|"},        {"", "End Left Delete", "|"},
    };
    for (const EditRow& row : rows) {
        box.SetText("");
        box.Suggest("MDC");
        EXPECT_EQ(ShownWithSuggestion(box), "(|MDC)");
        PressAll(*this, row.keys);
        EXPECT_EQ(ShownWithSuggestion(box), row.after) << row.keys;
    }
}

TEST_F(TextBoxTest, AKeyThatTheFieldRefusesLeavesTheSuggestion) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    box.KeyPress = [](int& KeyAscii) { KeyAscii = 0; };
    box.Suggest("72");
    Type("a");
    EXPECT_EQ(ShownWithSuggestion(box), "(|72)");
}

TEST_F(TextBoxTest, APasteThatTheFieldRefusesLeavesTheSuggestion) {
    TextBox box{form, "box", {.refusesPaste = "\""}};
    box.Suggest("72");
    box.Paste("\"\r\n");
    EXPECT_EQ(ShownWithSuggestion(box), "(|72)");
}

TEST_F(TextBoxTest, ASuggestionThatIsTypedOrPastedOrSetIsOneNoMore) {
    TextBox box{form, "box", {}};
    const std::function<void()> ways[] = {[&] { box.ReplaceByPaste("M"); }, [&] { box.Paste("M"); },
                                          [&] { box.TypeCharacter('M'); }, [&] { box.SetText("M"); }};
    for (const auto& way : ways) {
        box.Suggest("M");
        way();
        EXPECT_FALSE(box.IsSuggested());
        EXPECT_EQ(box.State().foreColor, kWindowText);
        EXPECT_EQ(box.Text(), "M");
    }
}

TEST_F(TextBoxTest, ASuggestionRunsChangeAsAnyTextFromCodeAndAnEmptyOneIsNone) {
    TextBox box{form, "box", {}};
    RecordChange(box);
    box.Suggest("72");
    EXPECT_EQ(TakeEvents(), "box.Change");
    box.Suggest("");
    EXPECT_EQ(TakeEvents(), "box.Change");
    EXPECT_EQ(ShownWithSuggestion(box), "|");
}

TEST_F(TextBoxTest, AKeyInALongTextCostsNoMoreThanInAShortOne) {
    TextBox box{form, "box", {}};
    Begin(box, "");
    constexpr int kKeys = 200'000;
    int copies = 0;  // of the whole text: each has its own place in memory
    const char* place = box.Text().data();
    const auto look = [&] { copies += std::exchange(place, box.Text().data()) != place ? 1 : 0; };
    for (int key = 0; key < kKeys; ++key) {
        Type("x");
        look();
    }
    EXPECT_EQ(box.Text().size(), std::size_t{kKeys});
    for (int key = 0; key < kKeys; ++key) {
        box.Backspace();
        look();
    }
    EXPECT_EQ(box.Text(), "");
    EXPECT_LT(copies, 40);
}

}  // namespace
}  // namespace tallyhut
