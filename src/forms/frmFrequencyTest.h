#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// Tries a raw command on the radio, and the tuning of the radio.
struct frmFrequencyTest : Form {
    explicit frmFrequencyTest(Desk& owner);

    Label Label1;
    Label Label2;
    TextBox Text1;  ///< a complete command
    CheckBox Check1;
    Button Command1;  ///< sends Text1
    Label Label4;
    TextBox Text2;    ///< MHz
    Button Command2;  ///< tunes to Text2
    Label Label3;
    Button cmdClose;
};

}  // namespace tallyhut
