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
               {.width = 3600, .height = 1800, .dialog = true, .neverActive = true}} {}

    Label lblName{*this, "lblName", "Tallyhut Log", {.place = {300, 300, 3000, 600}, .fontSize = 24}};
    Label lblPurpose{
        *this, "lblPurpose", "ARRL November Sweepstakes", {.place = {300, 1050, 3000, 300}, .fontSize = 12}};
    Timer Timer1{*this, "Timer1", 3'000, true};
};

}  // namespace tallyhut
