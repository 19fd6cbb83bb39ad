#include "forms/qt/key_codec.h"

#include <algorithm>
#include <array>

namespace tallyhut {
namespace {

struct NamedKey {
    int qtKey;
    int code;
    int character;
};

constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Backspace, kKeyBackspace, 8},
    NamedKey{Qt::Key_Tab, kKeyTab, 9},
    NamedKey{Qt::Key_Backtab, kKeyTab, 9},
    NamedKey{Qt::Key_Return, kKeyEnter, 13},
    NamedKey{Qt::Key_Enter, kKeyEnter, 13},
    NamedKey{Qt::Key_Escape, kKeyEsc, 27},
    NamedKey{Qt::Key_Space, kKeySpace, ' '},
    NamedKey{Qt::Key_PageUp, kKeyPageUp, 0},
    NamedKey{Qt::Key_PageDown, kKeyPageDown, 0},
    NamedKey{Qt::Key_End, kKeyEnd, 0},
    NamedKey{Qt::Key_Home, kKeyHome, 0},
    NamedKey{Qt::Key_Left, kKeyLeft, 0},
    NamedKey{Qt::Key_Up, kKeyUp, 0},
    NamedKey{Qt::Key_Right, kKeyRight, 0},
    NamedKey{Qt::Key_Down, kKeyDown, 0},
    NamedKey{Qt::Key_Insert, kKeyInsert, 0},
    NamedKey{Qt::Key_Delete, kKeyDelete, 0},
    NamedKey{Qt::Key_Menu, kKeyContextMenu, 0},
    NamedKey{Qt::Key_F1, kKeyF1, 0},
    NamedKey{Qt::Key_F2, kKeyF1 + 1, 0},
    NamedKey{Qt::Key_F3, kKeyF1 + 2, 0},
    NamedKey{Qt::Key_F4, kKeyF1 + 3, 0},
    NamedKey{Qt::Key_F5, kKeyF1 + 4, 0},
    NamedKey{Qt::Key_F6, kKeyF1 + 5, 0},
    NamedKey{Qt::Key_F7, kKeyF1 + 6, 0},
    NamedKey{Qt::Key_F8, kKeyF1 + 7, 0},
    NamedKey{Qt::Key_F9, kKeyF1 + 8, 0},
    NamedKey{Qt::Key_F10, kKeyF10, 0},
    NamedKey{Qt::Key_F11, kKeyF10 + 1, 0},
    NamedKey{Qt::Key_F12, kKeyF12, 0},
};

int ShiftOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    int shift = 0;
    if (modifiers.testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab) {
        shift |= kShift;
    }
    if (modifiers.testFlag(Qt::ControlModifier)) {
        shift |= kCtrl;
    }
    if (modifiers.testFlag(Qt::AltModifier)) {
        shift |= kAlt;
    }
    return shift;
}

/// The character that the event types by itself, 0 for none.
int TypedCharacter(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.size() != 1) {
        return 0;
    }
    const int character = text.front().unicode();
    const bool control = character < ' ' || (character >= 0x7F && character < 0xA0);
    return control || character > 0xFF ? 0 : character;
}

/// AltGr reaches us as a modifier of its own or as Ctrl and Alt together; with it a key types another character.
bool IsAltGr(const QKeyEvent& event, int shift) {
    return event.modifiers().testFlag(Qt::GroupSwitchModifier) || (shift & (kCtrl | kAlt)) == (kCtrl | kAlt);
}

bool IsLetter(int key) {
    return key >= Qt::Key_A && key <= Qt::Key_Z;
}

bool IsDigit(int key) {
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

/// A key that holds a modifier takes its character from the key itself.
int CharacterWith(int shift, int code) {
    const bool ctrlLetter = (shift & kAlt) == 0 && code >= 'A' && code <= 'Z';
    return ctrlLetter ? code - 'A' + 1 : 0;
}

}  // namespace

std::optional<Key> KeyFromEvent(const QKeyEvent& event) {
    if (event.modifiers().testFlag(Qt::MetaModifier)) {
        return std::nullopt;
    }
    int shift = ShiftOf(event);
    const auto* const named = std::ranges::find(kNamedKeys, event.key(), &NamedKey::qtKey);
    if (named != kNamedKeys.end()) {
        const bool plain = (shift & (kCtrl | kAlt)) == 0;
        return Key{.code = named->code, .shift = shift, .character = plain ? named->character : 0};
    }
    const int typed = TypedCharacter(event);
    if (typed != 0 && IsAltGr(event, shift)) {
        shift &= ~(kCtrl | kAlt);
    }
    const bool withModifier = (shift & (kCtrl | kAlt)) != 0;
    int code = 0;
    if (IsLetter(event.key()) || IsDigit(event.key())) {
        code = event.key();
    } else if (typed != 0) {
        code = KeyForCharacter(static_cast<unsigned char>(typed)).code;
    } else if (withModifier && event.key() > ' ' && event.key() < 0x7F) {
        code = KeyForCharacter(static_cast<unsigned char>(event.key())).code;
    }
    if (withModifier) {
        return code == 0 ? std::nullopt
                         : std::optional{Key{.code = code, .shift = shift, .character = CharacterWith(shift, code)}};
    }
    return typed == 0 ? std::nullopt : std::optional{Key{.code = code, .shift = shift, .character = typed}};
}

std::vector<Key> KeysFromText(const QString& composed) {
    std::vector<Key> keys;
    for (const QChar character : composed) {
        if (character.unicode() >= ' ' && character.unicode() <= 0xFF) {
            keys.push_back(KeyForCharacter(static_cast<unsigned char>(character.unicode())));
        }
    }
    return keys;
}

}  // namespace tallyhut
