#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The logo that greets the operator and goes by itself. Keys never go to it.
struct frmQ7ZZQLogo : Form {
    explicit frmQ7ZZQLogo(Desk& owner)
        : Form{owner,
               "frmQ7ZZQLogo",
               "Tallyhut Log",
               {.width = 3600, .height = 1500, .dialog = true, .neverActive = true}} {}

    Label lblName{*this, "lblName", "Tallyhut Log", {.place = {1350, 300, 2100, 480}, .fontSize = 22}};
    Label lblPurpose{
        *this, "lblPurpose", "ARRL November Sweepstakes", {.place = {1350, 840, 2100, 300}, .fontSize = 12}};
    Timer Timer1{*this, "Timer1", 3'000, true};
};

}  // namespace tallyhut
