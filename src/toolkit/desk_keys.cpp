#include <algorithm>

#include "toolkit/desk.h"

namespace tallyhut {
namespace {

/// Characters of Ctrl with a letter.
enum ControlCharacter { kCtrlA = 1, kCtrlC = 3, kCtrlV = 22, kCtrlX = 24 };

bool IsLetter(int keyCode) {
    return keyCode >= 'A' && keyCode <= 'Z';
}
bool IsDigit(int keyCode) {
    return keyCode >= '0' && keyCode <= '9';
}

/// The letter that finds an entry in its open menu: the access key, or else the caption's first character; 0 for one
/// that leaves its letter to another.
char MenuLetter(const MenuEntry& entry) {
    if (entry.yieldsLetter) {
        return '\0';
    }
    if (const char access = AccessKeyOf(entry.Caption()); access != 0) {
        return access;
    }
    const std::size_t first = entry.Caption().find_first_not_of(' ');
    return first == std::string::npos ? '\0' : AccessKeyOf('&' + entry.Caption().substr(first));
}

/// The two keys of a right click.
bool IsContextKey(int keyCode, int shift) {
    return (keyCode == kKeyContextMenu && shift == 0) || (keyCode == kKeyF10 && shift == kShift);
}

bool TakesClicks(const MenuEntry& entry) {
    return entry.State().visible && entry.State().enabled;
}

}  // namespace

void Desk::DeliverKey(Key key) {
    Form* form = Active();
    if (form == nullptr) {
        return;
    }
    Call(form->Form_AnyKey);
    if (MenuKeyTaken(key)) {
        return;
    }
    Control* control = form->focus_;
    const bool alt = (key.shift & kAlt) != 0;
    if (alt && (IsLetter(key.code) || IsDigit(key.code)) && AccessKeyTaken(*form, static_cast<char>(key.code))) {
        return;
    }
    if (key.code != 0) {  // what an input method composes comes without a key
        Call(form->Form_KeyDown, key.code, key.shift);
        if (key.code != 0 && control != nullptr) {
            Call(control->KeyDown, key.code, key.shift);
        }
        if (key.code == 0 || !form->IsLoaded() || ToolkitKeyTaken(*form, control, key.code, key.shift)) {
            return;
        }
    }
    int character = key.character;
    for (const auto* handler : {&form->Form_KeyPress, control == nullptr ? nullptr : &control->KeyPress}) {
        if (character != 0 && handler != nullptr) {
            Call(*handler, character);
        }
    }
    if (character == 0 && key.character == kCtrlA && form->design.dialog) {
        character = kCtrlA;  // a field that drops all but digits means what is typed into it
    }
    if (!form->IsLoaded()) {
        return;  // what a handler unloaded has its design values back, and keeps them
    }
    if (character == kKeyEnter || character == kKeyEsc) {
        DialogKey(*form, character);
    } else if (character != 0) {
        TypeInto(control, character);
    }
}

bool Desk::AccessKeyTaken(Form& form, char letter) {
    for (MenuEntry* menu : form.menus_) {
        if (TakesClicks(*menu) && AccessKeyOf(menu->Caption()) == letter) {
            if (menu->Entries().empty()) {
                ClickEntry(*menu);
            } else {
                SetOpenMenu(menu);
            }
            return true;
        }
    }
    for (std::size_t i = 0; i < form.controls_.size(); ++i) {
        Control& control = *form.controls_[i];
        if (control.kind == ControlKind::Menu || control.kind == ControlKind::TextBox || !CanBeClicked(control) ||
            AccessKeyOf(control.state_.text) != letter) {
            continue;
        }
        if (control.CanTakeFocus()) {
            PressByKey(control);
            return true;
        }
        const auto next = std::find_if(form.controls_.begin() + static_cast<std::ptrdiff_t>(i), form.controls_.end(),
                                       [](const Control* other) { return other->CanTakeFocus(); });
        if (next != form.controls_.end()) {
            (*next)->SetFocus();
            return true;
        }
    }
    return false;
}

void Desk::OpenMenuBar() {
    const Form* form = Active();
    if (form == nullptr || openMenu_ != nullptr) {
        return;
    }
    const auto first = std::ranges::find_if(
        form->menus_, [](const MenuEntry* menu) { return TakesClicks(*menu) && !menu->Entries().empty(); });
    if (first != form->menus_.end()) {
        SetOpenMenu(*first);
    }
}

bool Desk::MenuKeyTaken(const Key& key) {
    if (openMenu_ == nullptr) {
        return false;
    }
    std::vector<MenuEntry*> entries;
    std::ranges::copy_if(openMenu_->Entries(), std::back_inserter(entries),
                         [](const MenuEntry* entry) { return TakesClicks(*entry); });
    const int count = static_cast<int>(entries.size());
    MenuEntry* chosen = nullptr;
    if (key.code == kKeyEsc) {
        SetOpenMenu(openMenu_->Above());
    } else if (key.code == kKeyDown && count > 0) {
        highlighted_ = (highlighted_ + 1) % count;
    } else if (key.code == kKeyUp && count > 0) {
        highlighted_ = (std::max(highlighted_, 0) + count - 1) % count;
    } else if (key.code == kKeyEnter && highlighted_ >= 0 && highlighted_ < count) {
        chosen = entries[static_cast<std::size_t>(highlighted_)];
    } else if (IsLetter(key.code) || IsDigit(key.code)) {
        const auto found =
            std::ranges::find_if(entries, [&key](const MenuEntry* entry) { return MenuLetter(*entry) == key.code; });
        chosen = found == entries.end() ? nullptr : *found;
    }
    if (chosen != nullptr && !chosen->Entries().empty()) {
        SetOpenMenu(chosen);
    } else if (chosen != nullptr) {
        ClickEntry(*chosen);
    }
    return true;
}

bool Desk::ToolkitKeyTaken(Form& form, Control* control, int keyCode, int shift) {
    if (keyCode == kKeyF10 && shift == 0 && !form.menus_.empty()) {
        OpenMenuBar();
        return true;
    }
    if (keyCode == kKeyTab && (shift & ~kShift) == 0) {
        return TabTaken(form, control, (shift & kShift) != 0);
    }
    if (control == nullptr) {
        return false;
    }
    if (control->kind == ControlKind::TextBox) {
        return TextKeyTaken(static_cast<TextBox&>(*control), keyCode, shift);
    }
    if (IsContextKey(keyCode, shift)) {
        return RightClickTaken(*control);
    }
    if (shift != 0) {
        return false;
    }
    if (control->kind == ControlKind::List || control->kind == ControlKind::ListView) {
        return RowKeyTaken(*control, keyCode);
    }
    return PressTaken(*control, keyCode) ||
           (control->kind == ControlKind::Option && OptionKeyTaken(static_cast<Option&>(*control), keyCode));
}

bool Desk::TabTaken(Form& form, Control* control, bool backwards) {
    const std::vector<Control*> stops = form.TabStops();
    if (stops.empty()) {
        return false;
    }
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    const auto here = std::ranges::find(stops, control);
    std::ptrdiff_t next = 0;
    if (here != stops.end()) {
        next = (here - stops.begin() + (backwards ? count - 1 : 1)) % count;
    } else if (backwards) {
        next = count - 1;
    }
    stops[static_cast<std::size_t>(next)]->SetFocus();
    return true;
}

bool Desk::PressTaken(Control& control, int keyCode) {
    const bool pressesButton = control.kind == ControlKind::Button && (keyCode == kKeyEnter || keyCode == kKeySpace);
    const bool pressesBox =
        (control.kind == ControlKind::CheckBox || control.kind == ControlKind::Option) && keyCode == kKeySpace;
    if (!pressesButton && !pressesBox) {
        return false;
    }
    ChooseByOperator(control);
    return true;
}

bool Desk::OptionKeyTaken(Option& option, int keyCode) {
    const bool forwards = keyCode == kKeyDown || keyCode == kKeyRight;
    if (!forwards && keyCode != kKeyUp && keyCode != kKeyLeft) {
        return false;
    }
    std::vector<Control*> group;
    std::ranges::copy_if(option.form.controls_, std::back_inserter(group), [&option](const Control* other) {
        return other->kind == ControlKind::Option && other->frame_ == option.frame_ && other->CanTakeFocus();
    });
    if (group.empty()) {
        return true;
    }
    const auto count = static_cast<std::ptrdiff_t>(group.size());
    const auto here = std::ranges::find(group, &option) - group.begin();
    Control& next = *group[static_cast<std::size_t>((here + (forwards ? 1 : count - 1)) % count)];
    next.SetFocus();
    next.SetChosen(true);
    return true;
}

bool Desk::RowKeyTaken(Control& control, int keyCode) {
    constexpr int kPage = 10;
    const int rows = control.kind == ControlKind::ListView
                         ? static_cast<int>(static_cast<const ListView&>(control).RowCount())
                         : static_cast<int>(control.state_.items.size());
    int row = control.state_.row;
    switch (keyCode) {
        case kKeyUp:
            --row;
            break;
        case kKeyDown:
            ++row;
            break;
        case kKeyPageUp:
            row -= kPage;
            break;
        case kKeyPageDown:
            row += kPage;
            break;
        case kKeyHome:
            row = 0;
            break;
        case kKeyEnd:
            row = rows - 1;
            break;
        default:
            return false;
    }
    if (rows > 0) {
        control.SetRow(std::clamp(row, 0, rows - 1));
    }
    return true;
}

bool Desk::RightClickTaken(Control& control) {
    const bool isList = control.kind == ControlKind::List || control.kind == ControlKind::ListView;
    if (isList && control.state_.row >= 0) {
        ClickRow(control, control.state_.row, kRightButton);
    }
    return isList;
}

bool Desk::TextKeyTaken(TextBox& box, int keyCode, int shift) {
    const bool extend = shift == kShift;
    if (shift == kCtrl && keyCode == kKeyInsert) {
        CopySelection(box);
        return true;
    }
    if (extend && keyCode == kKeyInsert) {
        box.Paste(clipboard.Text());
        return true;
    }
    if (shift != 0 && !extend) {
        return false;
    }
    switch (keyCode) {
        case kKeyUp:
        case kKeyDown:
            if (!box.State().multiLine) {
                return false;
            }
            [[fallthrough]];
        case kKeyLeft:
        case kKeyRight:
        case kKeyHome:
        case kKeyEnd:
            box.MoveCaret(keyCode, extend);
            return true;
        case kKeyDelete:
            if (extend) {
                CopySelection(box);
            }
            if (!extend || box.SelLength() > 0) {
                box.Delete();
            }
            return true;
        default:
            return false;
    }
}

/// With nothing selected the clipboard keeps what it has.
void Desk::CopySelection(const TextBox& box) {
    if (box.SelLength() > 0 && !box.IsSecret()) {
        clipboard.SetText(box.SelectedText());
    }
}

void Desk::TypeInto(Control* control, int character) {
    if (control == nullptr || control->kind != ControlKind::TextBox) {
        return;
    }
    auto& box = static_cast<TextBox&>(*control);
    switch (character) {
        case kKeyBackspace:
            box.Backspace();
            break;
        case kCtrlA:
            box.Select(0, static_cast<int>(box.Text().size()));
            break;
        case kCtrlC:
            CopySelection(box);
            break;
        case kCtrlV:
            box.Paste(clipboard.Text());
            break;
        case kCtrlX:
            CopySelection(box);
            if (box.SelLength() > 0) {
                box.Delete();
            }
            break;
        default:
            if (character >= ' ' && character <= 0xFF) {
                box.TypeCharacter(static_cast<unsigned char>(character));
            }
    }
}

void Desk::DialogKey(Form& form, int character) {
    if (character == kKeyEnter && form.focus_ != nullptr && form.focus_->kind == ControlKind::TextBox &&
        form.focus_->state_.multiLine) {
        static_cast<TextBox&>(*form.focus_).Paste("\r\n");
        return;
    }
    if (!form.design.dialog) {
        return;
    }
    if (character == kKeyEsc) {
        form.RequestClose();
        return;
    }
    for (const std::string_view wanted : {"Done", "OK", "Close"}) {
        for (Control* control : form.controls_) {
            std::string caption = control->state_.text;
            std::erase(caption, '&');
            if (control->kind == ControlKind::Button && CanBeClicked(*control) && caption == wanted) {
                PressByKey(*control);
                return;
            }
        }
    }
}

}  // namespace tallyhut
