#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// What the function keys send, to be read while operating, and sent with the mouse.
struct frmCWStrings : Form {
    explicit frmCWStrings(Desk& owner);

    ControlArray<Label> Label1;       ///< 0 to 11, "F1" to "F12"
    ControlArray<Label> lblCWString;  ///< 0 to 11, their messages
    Label Label2;
    Button Command1;  ///< Done
};

}  // namespace tallyhut
