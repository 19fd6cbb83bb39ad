#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The help page.
struct Form5 : Form {
    explicit Form5(Desk& owner);

    TextBox Text1;
    Button Command1;
    Button Command2;
};

}  // namespace tallyhut
