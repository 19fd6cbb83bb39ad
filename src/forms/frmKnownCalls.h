#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog for the files of known calls.
struct frmKnownCalls : Form {
    explicit frmKnownCalls(Desk& owner);

    Label lblHistoryFile;
    TextBox txtHistory;  ///< the path of the call history; empty for none
    Button cmdHistory;
    CheckBox chkHistory;
    Label lblHistory;  ///< how many calls it holds
    Label lblScpFile;
    TextBox txtScp;  ///< the path of the calls for super check partial; empty for those in the contest's folder
    Button cmdScp;
    CheckBox chkScp;
    Label lblScpCount;  ///< how many calls are in use
    Label lblScpNote;
    Button cmdDone;
};

}  // namespace tallyhut
