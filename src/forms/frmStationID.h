#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog for the operator's own side of the exchange.
struct frmStationID : Form {
    explicit frmStationID(Desk& owner);

    ControlArray<Label> lblField;  ///< 1 to 5, beside the fields in the order below
    TextBox Text1;                 ///< call
    TextBox Text3;                 ///< precedence
    Label lblPrecHint;
    TextBox Text4;  ///< check
    Label lblCheckHint;
    TextBox Text5;  ///< section
    Label lblSectionHint;
    TextBox Text6;  ///< hours added for UTC
    FrameBox Frame1;
    Option Option1;  ///< CW
    Option Option2;  ///< Phone
    Button Command1;
};

}  // namespace tallyhut
