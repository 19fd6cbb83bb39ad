#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The dialog that says which device each serial port number means.
struct frmPorts : Form {
    explicit frmPorts(Desk& owner);

    Label lblPorts;
    ListView lstPorts;  ///< ports 1 to 10 from the top
    Label lblDevices;
    List lstDevices;  ///< the automatic choice, then the devices found
    Label lblDevice;
    TextBox txtDevice;  ///< the path chosen for the port of the selected row; empty for the automatic choice
    Label lblNote;      ///< what the operator should know of that port
    Button cmdUse;
    Button cmdLook;
    Button cmdDone;
};

}  // namespace tallyhut
