#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tallyhut {

/// Shift states, added up.
enum ShiftState { kShift = 1, kCtrl = 2, kAlt = 4 };

/// Key codes. Letters and digits have the code of their capital or digit.
enum KeyCode {
    kKeyBackspace = 8,
    kKeyTab = 9,
    kKeyEnter = 13,
    kKeyShift = 16,
    kKeyControl = 17,
    kKeyMenu = 18,
    kKeyEsc = 27,
    kKeySpace = 32,
    kKeyPageUp = 33,
    kKeyPageDown = 34,
    kKeyEnd = 35,
    kKeyHome = 36,
    kKeyLeft = 37,
    kKeyUp = 38,
    kKeyRight = 39,
    kKeyDown = 40,
    kKeyInsert = 45,
    kKeyDelete = 46,
    kKeyContextMenu = 93,
    kKeyF1 = 112,
    kKeyF10 = 121,
    kKeyF12 = 123,
};

/// One press of a key.
struct Key {
    int code = 0;       ///< which key, as KeyDown sees it; 0 for a character that no single key makes (an input method)
    int shift = 0;      ///< ShiftState
    int character = 0;  ///< what KeyPress sees: Latin-1, or 1 to 26 with Ctrl; 0 for a key without a character

    bool operator==(const Key&) const = default;
};

/// The key press that types the character; a capital is typed with Shift. `character` is Latin-1, or one of 8, 9,
/// 13, 27.
Key KeyForCharacter(unsigned char character);

/// A key by its name: "Enter", "Tab", "Shift+Tab", "F1", "Ctrl+W", "Alt+C", "A". Nothing for a name that is none.
std::optional<Key> KeyByName(std::string_view name);

/// The letter or digit behind the first single `&` of a caption, as a capital; 0 where there is none.
char AccessKeyOf(std::string_view caption);

}  // namespace tallyhut
