#pragma once

#include "platform/screen.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The screen that every form is designed for.
inline constexpr ScreenSize kDesignScreen{.width = 9600, .height = 7200};

/// How many times as large a form becomes.
struct Ratios {
    double width = 1;
    double height = 1;

    /// Text grows with the width, at most by half.
    double Font() const;
    bool operator==(const Ratios&) const = default;
};

/// Throws ValueError for a size that is nothing.
Ratios RatiosOf(const ScreenSize& newSize, const ScreenSize& oldSize);

Place Scaled(const Place& place, const Ratios& ratios);

/// In the middle of the screen, and up by a title bar.
Place Centred(const ScreenSize& form, const ScreenSize& screen);

/// How many times as large as in its design the text of a form is that has been scaled to its present size.
double FontRatioOf(const Form& form);

// Both routines begin at the form's design, so that a form that is scaled again is not scaled twice; controls that were
// made since the form was loaded are left to whoever makes them. A failure is told in a box and leaves the form as it
// is.

/// The share of the screen that the form's design has of the design's screen. The first step of a dialog's Form_Load.
void ScaleSmallForm(Form& form, const Screen& screen);

/// Design units throughout.
struct SizeChange {
    double NewHeight = 0;
    double NewWidth = 0;
    double OldHeight = 0;
    double OldWidth = 0;
    bool SetSize = false;  ///< the form takes the new size as it stands; else its design grows by new over old
};

/// Scales the form's controls by new over old, and centres the form on a screen of this size.
void ScaleFormToSize(Form& form, const SizeChange& change, const ScreenSize& screen);

}  // namespace tallyhut
