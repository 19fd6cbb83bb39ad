#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog that shows which sections the contest has, and gives it others.
struct frmSections : Form {
    explicit frmSections(Desk& owner);

    Label lblInForce;
    Label lblSections;  ///< the list in force
    Label lblLists;
    ListView lstSections;  ///< the lists that come with the program, the newest first, then that of the folder
    Label lblHolds;
    ListView lstHolds;  ///< what the selected list holds
    Label lblNote;      ///< what the operator should know of the selected list
    Button cmdUse;
    Button cmdDone;
};

}  // namespace tallyhut
