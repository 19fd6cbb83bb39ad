#pragma once

#include "contest/contest.h"
#include "forms/Form1.h"

namespace tallyhut {

/// The sections on the main form, each under the heading of its call area. Their state is told by more than the colour:
/// needed is bold, worked is not; needed and spotted is underlined beside.
struct SectionGrid {
    Form1& form;
    const Contest& contest;

    /// Puts each label of the list in force under its heading, in the form's design. What does not fit below a heading
    /// has a further column beside it; all columns are narrower then.
    void PlaceLabels();
    /// Shows as many labels as there are sections, each with its caption, tool tip and first colour.
    void Fill();
    /// All of them, as before the first contact.
    void ShowAllNeeded();
    void ShowWorked(int section) { ShowWorked(section, contest.preferences.gColorWorked); }
    void ShowWorked(int section, Colour colour);
    void ShowNeeded(int section, Colour colour);
    /// Needed, and a post offers it.
    void ShowSpotted(int section);

private:
    void ShowLegend();
};

}  // namespace tallyhut
