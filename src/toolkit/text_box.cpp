#include <algorithm>

#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "toolkit/form.h"
#include "values/secret.h"

namespace tallyhut {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// How far the character before or behind the caret reaches: the two of a line end are one.
int StepBefore(std::string_view text, int caret) {
    return text.substr(0, static_cast<std::size_t>(caret)).ends_with(kLineEnd) ? 2 : 1;
}

int StepBehind(std::string_view text, int caret) {
    return text.substr(static_cast<std::size_t>(caret)).starts_with(kLineEnd) ? 2 : 1;
}

}  // namespace

TextBox::TextBox(Form& owner, std::string controlName, const TextBoxDesign& design)
    : Control{owner, ControlKind::TextBox, std::move(controlName)} {
    state_.place = design.place;
    state_.maxLength = design.maxLength;
    state_.tabIndex = design.tabIndex;
    state_.tabStop = design.tabStop;
    state_.fontSize = design.fontSize;
    state_.toolTip = design.toolTip;
    state_.refusesPaste = design.refusesPaste;
    state_.multiLine = design.multiLine;
    state_.locked = design.locked;
    state_.visible = design.visible;
    state_.backColor = kWindowGround;
    state_.secret = design.secret;
    if (design.secret) {
        state_.text.reserve(
            static_cast<std::size_t>(design.maxLength));  // so that no copy is left behind when it grows
    }
}

void TextBox::SetText(std::string_view text) {
    EndSuggestion();
    SetTextValue(text);
}

void TextBox::Suggest(std::string_view text) {
    SetText(text);
    state_.suggested = !state_.text.empty();
    SetForeColor(state_.suggested ? kSuggestion : kWindowText);
}

/// What the operator does next is done to the whole of it.
void TextBox::SelectSuggestion() {
    if (state_.suggested) {
        Select(0, static_cast<int>(state_.text.size()));
    }
}

void TextBox::EndSuggestion() {
    if (state_.suggested) {
        state_.suggested = false;
        SetForeColor(kWindowText);
    }
}

std::string TextBox::SelectedText() const {
    if (state_.secret) {
        return {};
    }
    return state_.text.substr(static_cast<std::size_t>(state_.selStart), static_cast<std::size_t>(state_.selLength));
}

void TextBox::Select(int start, int length) {
    const int size = static_cast<int>(state_.text.size());
    state_.selStart = std::clamp(start, 0, size);
    state_.selLength = std::clamp(length, 0, size - state_.selStart);
    state_.caretAtStart = false;
    Touch();
}

int TextBox::Caret() const {
    return state_.caretAtStart ? state_.selStart : state_.selStart + state_.selLength;
}

void TextBox::Splice(int start, int length, std::string_view inserted) {
    EndSuggestion();
    const auto at = static_cast<std::size_t>(start);
    const auto count = static_cast<std::size_t>(length);
    const bool changed = std::string_view{state_.text}.substr(at, count) != inserted;
    state_.text.replace(at, count, inserted);  // in place: a long text costs a key no more than a short one
    if (state_.secret) {
        OverwriteFrom(state_.text, state_.text.size());
    }
    Select(start + static_cast<int>(inserted.size()), 0);
    if (changed) {
        state_.refused = false;
        form.desk.Call(Change);
    }
}

void TextBox::TypeCharacter(unsigned char character) {
    SelectSuggestion();
    const int length = static_cast<int>(state_.text.size()) - state_.selLength + 1;
    if (state_.locked || (state_.maxLength > 0 && length > state_.maxLength)) {
        return;
    }
    const char typed = static_cast<char>(character);
    Splice(state_.selStart, state_.selLength, {&typed, 1});
}

void TextBox::Backspace() {
    if (state_.locked) {
        return;
    }
    SelectSuggestion();
    if (state_.selLength > 0) {
        Splice(state_.selStart, state_.selLength, "");
    } else if (state_.selStart > 0) {
        const int length = StepBefore(state_.text, state_.selStart);
        Splice(state_.selStart - length, length, "");
    }
}

void TextBox::Delete() {
    if (state_.locked) {
        return;
    }
    SelectSuggestion();
    if (state_.selLength > 0) {
        Splice(state_.selStart, state_.selLength, "");
    } else if (state_.selStart < static_cast<int>(state_.text.size())) {
        Splice(state_.selStart, StepBehind(state_.text, state_.selStart), "");
    }
}

/// What paste leaves in: no character that the field refuses, no line end (but in a multi-line field), nothing unseen.
std::string TextBox::Accepted(std::string_view text) const {
    std::string accepted;
    for (const char character : text) {
        const bool lineEnd = character == '\r' || character == '\n';
        const bool unseen = static_cast<unsigned char>(character) < ' ' && !lineEnd;
        if (unseen || (lineEnd && !state_.multiLine) || state_.refusesPaste.find(character) != std::string::npos) {
            continue;
        }
        accepted += character;
    }
    return accepted;
}

void TextBox::Paste(std::string_view text) {
    if (state_.locked) {
        return;
    }
    std::string accepted = Accepted(text);
    if (accepted.empty()) {
        return;
    }
    SelectSuggestion();
    if (state_.maxLength > 0) {
        const std::size_t kept = state_.text.size() - static_cast<std::size_t>(state_.selLength);
        const auto limit = static_cast<std::size_t>(state_.maxLength);
        const std::size_t taken = std::min(accepted.size(), limit > kept ? limit - kept : 0);
        const bool splitsLineEnd = taken > 0 && taken < accepted.size() && accepted[taken - 1] == '\r';
        accepted.resize(splitsLineEnd ? taken - 1 : taken);
    }
    if (!accepted.empty()) {
        Splice(state_.selStart, state_.selLength, accepted);
    }
}

void TextBox::ReplaceByPaste(std::string_view text) {
    Select(0, static_cast<int>(state_.text.size()));
    if (Accepted(text).empty()) {
        Delete();
    } else {
        Paste(text);
    }
}

namespace {

/// Where the line that holds `position` begins, and where it ends.
int LineBegin(const std::string& text, int position) {
    const std::size_t end =
        position == 0 ? std::string::npos : text.rfind('\n', static_cast<std::size_t>(position - 1));
    return end == std::string::npos ? 0 : static_cast<int>(end) + 1;
}

int LineEnd(const std::string& text, int position) {
    const std::size_t end = text.find_first_of("\r\n", static_cast<std::size_t>(position));
    return static_cast<int>(end == std::string::npos ? text.size() : end);
}

int LineAbove(const std::string& text, int position) {
    const int begin = LineBegin(text, position);
    if (begin == 0) {
        return position;
    }
    const int above = LineBegin(text, begin - 1);
    return std::min(above + position - begin, LineEnd(text, above));
}

int LineBelow(const std::string& text, int position) {
    const std::size_t next = text.find('\n', static_cast<std::size_t>(position));
    if (next == std::string::npos) {
        return position;
    }
    const int below = static_cast<int>(next) + 1;
    return std::min(below + position - LineBegin(text, position), LineEnd(text, below));
}

int Moved(const std::string& text, int caret, int keyCode) {
    switch (keyCode) {
        case kKeyLeft:
            return caret - StepBefore(text, caret);
        case kKeyRight:
            return caret + StepBehind(text, caret);
        case kKeyHome:
            return LineBegin(text, caret);
        case kKeyEnd:
            return LineEnd(text, caret);
        case kKeyUp:
            return LineAbove(text, caret);
        case kKeyDown:
            return LineBelow(text, caret);
        default:
            return caret;
    }
}

}  // namespace

void TextBox::MoveCaret(int keyCode, bool extend) {
    const int caret = Caret();
    const int anchor = state_.caretAtStart ? state_.selStart + state_.selLength : state_.selStart;
    int target = std::clamp(Moved(state_.text, caret, keyCode), 0, static_cast<int>(state_.text.size()));
    if (!extend) {
        if (state_.selLength > 0 && (keyCode == kKeyLeft || keyCode == kKeyRight)) {
            target = keyCode == kKeyLeft ? state_.selStart : state_.selStart + state_.selLength;
        }
        Select(target, 0);
        return;
    }
    Select(std::min(anchor, target), std::abs(target - anchor));
    state_.caretAtStart = target < anchor;
}

}  // namespace tallyhut
