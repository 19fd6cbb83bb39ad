#include "toolkit/key.h"

namespace tallyhut {
namespace {

struct NamedKey {
    std::string_view name;
    int code;
    int character;
};

constexpr std::array kNamedKeys{
    NamedKey{"Backspace", kKeyBackspace, 8},
    NamedKey{"Tab", kKeyTab, 9},
    NamedKey{"Enter", kKeyEnter, 13},
    NamedKey{"Esc", kKeyEsc, 27},
    NamedKey{"Space", kKeySpace, ' '},
    NamedKey{"PageUp", kKeyPageUp, 0},
    NamedKey{"PageDown", kKeyPageDown, 0},
    NamedKey{"End", kKeyEnd, 0},
    NamedKey{"Home", kKeyHome, 0},
    NamedKey{"Left", kKeyLeft, 0},
    NamedKey{"Up", kKeyUp, 0},
    NamedKey{"Right", kKeyRight, 0},
    NamedKey{"Down", kKeyDown, 0},
    NamedKey{"Insert", kKeyInsert, 0},
    NamedKey{"Delete", kKeyDelete, 0},
    NamedKey{"Menu", kKeyContextMenu, 0},
    NamedKey{"F1", 112, 0},
    NamedKey{"F2", 113, 0},
    NamedKey{"F3", 114, 0},
    NamedKey{"F4", 115, 0},
    NamedKey{"F5", 116, 0},
    NamedKey{"F6", 117, 0},
    NamedKey{"F7", 118, 0},
    NamedKey{"F8", 119, 0},
    NamedKey{"F9", 120, 0},
    NamedKey{"F10", kKeyF10, 0},
    NamedKey{"F11", 122, 0},
    NamedKey{"F12", kKeyF12, 0},
};

/// The keys beside letters and digits, on the layout that the codes were made for.
struct PunctuationKey {
    char plain;
    char shifted;
    int code;
};

constexpr std::array kPunctuationKeys{
    PunctuationKey{';', ':', 186}, PunctuationKey{'=', '+', 187},  PunctuationKey{',', '<', 188},
    PunctuationKey{'-', '_', 189}, PunctuationKey{'.', '>', 190},  PunctuationKey{'/', '?', 191},
    PunctuationKey{'`', '~', 192}, PunctuationKey{'[', '{', 219},  PunctuationKey{'\\', '|', 220},
    PunctuationKey{']', '}', 221}, PunctuationKey{'\'', '"', 222},
};

constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";

struct ModifierName {
    std::string_view prefix;
    ShiftState state;
};

constexpr std::array kModifierNames{ModifierName{"Shift+", kShift}, ModifierName{"Ctrl+", kCtrl},
                                    ModifierName{"Alt+", kAlt}};

constexpr bool IsDigit(unsigned char character) {
    return character >= '0' && character <= '9';
}
constexpr bool IsCapital(unsigned char character) {
    return character >= 'A' && character <= 'Z';
}
constexpr bool IsSmall(unsigned char character) {
    return character >= 'a' && character <= 'z';
}

/// What a key types while modifiers are held: Ctrl with a letter gives 1 to 26, Alt gives nothing.
int CharacterWith(const Key& key) {
    if ((key.shift & kAlt) != 0) {
        return 0;
    }
    if ((key.shift & kCtrl) != 0) {
        return key.code >= 'A' && key.code <= 'Z' ? key.code - 'A' + 1 : 0;
    }
    return key.character;
}

std::optional<Key> PlainKeyByName(std::string_view name) {
    for (const NamedKey& row : kNamedKeys) {
        if (row.name == name) {
            return Key{.code = row.code, .shift = 0, .character = row.character};
        }
    }
    if (name.size() == 1) {
        return KeyForCharacter(static_cast<unsigned char>(name.front()));
    }
    return std::nullopt;
}

}  // namespace

Key KeyForCharacter(unsigned char character) {
    const int typed = character;
    if (IsDigit(character) || character == ' ' || character == 8 || character == 9 || character == 13 ||
        character == 27) {
        return {.code = typed, .shift = 0, .character = typed};
    }
    if (IsCapital(character)) {
        return {.code = typed, .shift = kShift, .character = typed};
    }
    if (IsSmall(character)) {
        return {.code = typed - 'a' + 'A', .shift = 0, .character = typed};
    }
    for (const PunctuationKey& row : kPunctuationKeys) {
        if (row.plain == static_cast<char>(character)) {
            return {.code = row.code, .shift = 0, .character = typed};
        }
        if (row.shifted == static_cast<char>(character)) {
            return {.code = row.code, .shift = kShift, .character = typed};
        }
    }
    const std::size_t digit = kShiftedDigits.find(static_cast<char>(character));
    if (digit != std::string_view::npos) {
        return {.code = '0' + static_cast<int>(digit), .shift = kShift, .character = typed};
    }
    return {.code = 0, .shift = 0, .character = typed};
}

std::optional<Key> KeyByName(std::string_view name) {
    int shift = 0;
    for (bool found = true; found;) {
        found = false;
        for (const ModifierName& row : kModifierNames) {
            if (name.size() > row.prefix.size() && name.starts_with(row.prefix)) {
                name.remove_prefix(row.prefix.size());
                shift |= row.state;
                found = true;
            }
        }
    }
    std::optional<Key> key = PlainKeyByName(name);
    if (key && shift != 0) {
        const bool letter = name.size() == 1 && key->code >= 'A' && key->code <= 'Z';
        key->shift = letter ? shift : key->shift | shift;  // "Ctrl+W" is Ctrl and the W key, without Shift
        key->character = CharacterWith(*key);
    }
    return key;
}

char AccessKeyOf(std::string_view caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') {
            continue;
        }
        const auto next = static_cast<unsigned char>(caption[i + 1]);
        if (next == '&') {
            ++i;
        } else if (IsSmall(next)) {
            return static_cast<char>(next - 'a' + 'A');
        } else {
            return IsCapital(next) || IsDigit(next) ? static_cast<char>(next) : '\0';
        }
    }
    return 0;
}

}  // namespace tallyhut
