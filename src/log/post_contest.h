#pragma once

#include "log/panel.h"

namespace tallyhut {

/// Contacts logged on paper are entered with their own date and time. That the two fields are shown is the mode's only
/// state.
struct PostContest {
    Panel& panel;

    bool IsOn() const { return panel.form.txtPostConTime.IsShown(); }

    void mnuPostContest_Click();
    void txtPostConTime_GotFocus();
    void txtPostConDate_GotFocus();
    /// True when the key asks for a commit.
    bool txtPostConTime_KeyPress(int& KeyAscii);
    bool txtPostConDate_KeyPress(int& KeyAscii);

    /// Brings date and time into the log's form; false, with a message, when one of them is none.
    bool CheckDateAndTime();

private:
    bool KeyPress(int& KeyAscii, int lowest, int highest);
    bool Refuse(TextBox& field, std::string_view text);
};

}  // namespace tallyhut
