#pragma once

#include "contest/contest.h"
#include "forms/Form1.h"

namespace tallyhut {

/// The five entry fields as one thing: which comes first, emptying, the serial number beside them.
struct EntryFields {
    Form1& form;
    const Contest& contest;

    bool gPassedCallTwice = false;  ///< in mode 3: the contact has bounced from the check back to the number

    /// The mode's first field of a new contact.
    TextBox& First() { return TabMode(contest.preferences) == 1 ? form.txtNum : form.txtCall; }
    void Empty();
    /// What speaks of a row of the list goes when the operator turns to the entry fields.
    void HideRowButtons();
    /// A blank and the number form of the serial number to send next. Throws ValueError when the last one is no number.
    void ShowNextSerial();
};

}  // namespace tallyhut
