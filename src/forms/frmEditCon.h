#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog for changing one logged contact.
struct frmEditCon : Form {
    explicit frmEditCon(Desk& owner);

    ControlArray<Label> lblField;  ///< 1 to 9, beside the fields in the order below
    TextBox txtEditNumSent;
    TextBox txtEditNum;
    TextBox txtEditPre;
    TextBox txtEditCall;
    TextBox txtEditCk;
    TextBox txtEditSec;
    TextBox txtEditDate;
    TextBox txtEditTime;
    TextBox txtEditBnd;
    Label Label1;  ///< beside the call: it is logged in another row
    Label Label2;  ///< beside the section: there is none of that code
    Button cmdDeleteDupe;
    Button cmdDone;
};

}  // namespace tallyhut
