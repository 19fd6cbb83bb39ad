#pragma once

#include <vector>

#include "forms/frmPorts.h"
#include "platform/serial_port.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Where the operator sees and chooses which device each serial port number means. A choice is stored at once, and
/// counts from the next opening of a port with that number.
struct PortsSetup {
    frmPorts& dialog;
    Desk& desk;
    SerialPorts& serialPorts;

    std::vector<SerialDevice> found = {};  ///< in the rows of lstDevices, below the first

    /// Returns when the dialog has been closed.
    void mnuPorts_Click();

    // The form.
    void frmPorts_Load();
    void lstPorts_Click();
    void lstDevices_Click();
    /// Of lstDevices and txtDevice: Enter is cmdUse.
    void Device_KeyPress(int& KeyAscii);
    void cmdUse_Click();
    void cmdLook_Click();
    void cmdDone_Click();

private:
    /// 1 to 10.
    int SelectedPort() const;
    void ShowAll(int row);
};

}  // namespace tallyhut
