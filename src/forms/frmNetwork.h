#pragma once

#include "toolkit/controls.h"
#include "toolkit/form.h"

namespace tallyhut {

/// The form for what is told to other programs over the network.
struct frmNetwork : Form {
    explicit frmNetwork(Desk& owner);

    CheckBox chkContacts;
    Label lblContacts;
    TextBox txtContacts;  ///< addresses, HOST:PORT, with commas between
    CheckBox chkRadio;
    Label lblRadio;
    TextBox txtRadio;
    Label lblApp;
    TextBox txtApp;  ///< what readers know the sender by
    Label lblAppNote;
    Label lblNote;
    Label lblNetwork;  ///< the last failure; empty while all is well
    Button cmdDone;
};

}  // namespace tallyhut
