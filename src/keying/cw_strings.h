#pragma once

#include "forms/frmCWStrings.h"
#include "keying/cw_messages.h"

namespace tallyhut {

/// The list of what the function keys send. It changes no message.
struct CwStrings {
    frmCWStrings& form;
    const CWFrm& messagesForm;
    CwMessages& messages;

    void frmCWStrings_Activate();
    /// Of a label of a row, 0 to 11.
    void Row_DblClick(int row);
    void Command1_Click();

    void Show();
    void ShowMinimised();
};

}  // namespace tallyhut
