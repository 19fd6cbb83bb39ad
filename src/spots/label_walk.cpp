#include "spots/label_walk.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "toolkit/desk.h"
#include "toolkit/form.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::vector<int>>;

std::vector<int> AllOf(const Lines& lines) {
    std::vector<int> all;
    for (const std::vector<int>& line : lines) {
        all.insert(all.end(), line.begin(), line.end());
    }
    return all;
}

}  // namespace

LabelWalk::LabelWalk(Label& holder, std::string_view none, Outlets outlets)
    : holder_{holder}, none_{none}, outlets_{std::move(outlets)} {
    holder_.GotFocus = [this] { GotFocus(); };
    holder_.LostFocus = [this] { Mark(-1); };
    holder_.KeyDown = [this](int& KeyCode, int Shift) { KeyDown(KeyCode, Shift); };
}

void LabelWalk::GotFocus() {
    Step(0);
}

void LabelWalk::KeyDown(int& KeyCode, int Shift) {
    const bool isLetter = KeyCode >= 'A' && KeyCode <= 'Z';
    if ((Shift == 0 || (Shift == kShift && isLetter)) && Goes(KeyCode)) {
        KeyCode = 0;
    }
}

bool LabelWalk::Goes(int KeyCode) {
    switch (KeyCode) {
        case kKeyUp:
            Step(-1);
            return true;
        case kKeyDown:
            Step(1);
            return true;
        case kKeyLeft:
            StepLine(-1);
            return true;
        case kKeyRight:
            StepLine(1);
            return true;
        case kKeyEnter:
            if (pointed_ >= 0) {
                outlets_.press(pointed_, kRightButton);
            }
            return true;
        case kKeyDelete:
            Discard();
            return true;
        default:
            break;
    }
    if (KeyCode < 'A' || KeyCode > 'Z') {
        return false;
    }
    GoToLetter(static_cast<char>(KeyCode));
    return true;
}

void LabelWalk::Step(int by) {
    const std::vector<int> all = AllOf(outlets_.lines());
    const auto present = std::ranges::find(all, pointed_);
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    if (count == 0 || present == all.end()) {
        PointAt(count == 0 ? -1 : all.front());
        return;
    }
    const std::ptrdiff_t next = (present - all.begin() + by + count) % count;
    PointAt(all[static_cast<std::size_t>(next)]);
}

/// To the label that stands nearest to this one's height.
void LabelWalk::StepLine(int by) {
    Lines lines = outlets_.lines();
    std::erase_if(lines, [](const std::vector<int>& line) { return line.empty(); });
    const auto present = std::ranges::find_if(
        lines, [this](const std::vector<int>& line) { return std::ranges::find(line, pointed_) != line.end(); });
    if (lines.size() < 2 || present == lines.end()) {
        Step(by);
        return;
    }
    const auto count = static_cast<std::ptrdiff_t>(lines.size());
    const auto& beside = lines[static_cast<std::size_t>((present - lines.begin() + by + count) % count)];
    const double top = outlets_.label(pointed_).State().place.top;
    PointAt(*std::ranges::min_element(
        beside, {}, [this, top](int index) { return std::abs(outlets_.label(index).State().place.top - top); }));
}

void LabelWalk::GoToLetter(char letter) {
    std::vector<int> all = AllOf(outlets_.lines());
    if (const auto present = std::ranges::find(all, pointed_); present != all.end()) {
        std::rotate(all.begin(), present + 1, all.end());
    }
    const auto found = std::ranges::find_if(
        all, [this, letter](int index) { return outlets_.label(index).Caption().starts_with(letter); });
    if (found != all.end()) {
        PointAt(*found);
    }
}

/// And points at what comes up in its place.
void LabelWalk::Discard() {
    const std::vector<int> before = AllOf(outlets_.lines());
    const auto present = std::ranges::find(before, pointed_);
    if (present == before.end()) {
        return;
    }
    outlets_.press(pointed_, kLeftButton);
    const std::vector<int> left = AllOf(outlets_.lines());
    const auto position = static_cast<std::size_t>(present - before.begin());
    PointAt(left.empty() ? -1 : left[std::min(position, left.size() - 1)]);
}

void LabelWalk::PointAt(int index) {
    Mark(index);
    if (index < 0) {
        holder_.form.desk.Announce(none_);
        return;
    }
    outlets_.hover(index);
    holder_.form.desk.Announce(outlets_.words(index));
}

void LabelWalk::Mark(int index) {
    if (pointed_ >= 0) {
        outlets_.label(pointed_).SetPointed(false);
    }
    pointed_ = index;
    if (pointed_ >= 0) {
        outlets_.label(pointed_).SetPointed(true);
    }
}

void LabelWalk::TakeShift() {
    if (pointed_ >= 0) {
        Mark(pointed_ - 1);
    }
}

}  // namespace tallyhut
