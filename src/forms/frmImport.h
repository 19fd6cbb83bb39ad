#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// What an import has brought, and each line that it has not.
struct frmImport : Form {
    explicit frmImport(Desk& owner);

    Label lblReport;  ///< how much came in, and where it lies
    Label lblLines;
    ListView lstReport;  ///< a row for each line that somebody should look at
    Button cmdDone;
};

}  // namespace tallyhut
