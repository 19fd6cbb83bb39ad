#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// How much is spoken to an operator who does not see the screen.
struct BlindFrm : Form {
    explicit BlindFrm(Desk& owner);

    FrameBox fraLevel;
    Option Option1;  ///< off
    Label lblOff;
    Option Option2;  ///< the call alone
    Label lblCallOnly;
    Option Option3;  ///< all fields
    Label lblAllFields;
    Label lblAlways;
    Label lblFiles;
    Label Label7;  ///< where the recordings are looked for
    Label lblShipped;
    Button Command1;  ///< Done
};

}  // namespace tallyhut
