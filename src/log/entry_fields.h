#pragma once

#include "forms/Form1.h"
#include "log/contact_log.h"
#include "log/preferences.h"

namespace tallyhut {

/// The five entry fields as one thing: which comes first, emptying, the serial number beside them.
struct EntryFields {
    Form1& form;
    const Preferences& preferences;
    const ContactLog& log;

    bool gPassedCallTwice = false;  ///< in mode 3: the contact has bounced from the check back to the number

    /// The mode's first field of a new contact.
    TextBox& First() { return TabMode(preferences) == 1 ? form.txtNum : form.txtCall; }
    void Empty();
    /// What speaks of a row of the list goes when the operator turns to the entry fields.
    void HideRowButtons();
    /// A blank and the number form of the serial number to send next. Throws ValueError when the last one is no number.
    void ShowNextSerial();
};

}  // namespace tallyhut
