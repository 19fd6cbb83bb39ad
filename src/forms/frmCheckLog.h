#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog with what the sponsor's robot or a judge would object to.
struct frmCheckLog : Form {
    explicit frmCheckLog(Desk& owner);

    Label lblFindings;  ///< how many there are
    ListView lstFindings;
    Button cmdEdit;
    Button cmdDone;
};

}  // namespace tallyhut
