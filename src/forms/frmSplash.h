#pragma once

#include "toolkit/form.h"

namespace tallyhut {

/// The start-up form: what it loads is the program's folders. It is never seen itself.
struct frmSplash : Form {
    explicit frmSplash(Desk& owner) : Form{owner, "frmSplash", "Tallyhut Log", {.neverActive = true}} {}
};

}  // namespace tallyhut
