#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog for the two colours of the section grid.
struct Form6 : Form {
    explicit Form6(Desk& owner);

    Label Label1;     ///< in the colour of a section that is worked
    Button Command3;  ///< chooses it
    Label Label2;     ///< in the colour of a section that is still needed
    Button Command1;  ///< chooses it
    Button Command6;
};

}  // namespace tallyhut
