#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/controls.h"

namespace tallyhut {

/// The keyboard's way through labels that otherwise the mouse points at, while a label of its own has the focus. Arrows
/// go from one to the next, along a line and from line to line; in a single line all four go along it. A letter goes to
/// the next label that begins with it. Enter is the right mouse button and Delete the left one.
class LabelWalk {
public:
    struct Outlets {
        std::function<std::vector<std::vector<int>>()> lines;  ///< the labels of each line, by index, in order
        std::function<Label&(int index)> label;
        std::function<void(int index)> hover;
        std::function<std::string(int index)> words;  ///< what is said of it
        std::function<void(int index, MouseButton button)> press;
    };

    /// @param holder  has the focus meanwhile; its events are taken
    LabelWalk(Label& holder, std::string_view none, Outlets outlets);

    /// Each label now shows what the one behind it did.
    void TakeShift();
    /// The label that the keyboard points at; -1 for none.
    int Pointed() const { return pointed_; }

private:
    void GotFocus();
    void KeyDown(int& KeyCode, int Shift);
    bool Goes(int KeyCode);
    void Step(int by);
    void StepLine(int by);
    void GoToLetter(char letter);
    void Discard();
    void PointAt(int index);
    void Mark(int index);

    Label& holder_;
    std::string none_;
    Outlets outlets_;
    int pointed_ = -1;
};

}  // namespace tallyhut
