#include "support/support_part.h"

namespace tallyhut {

SupportPart::SupportPart(Machine& machine, Desk& desk, const std::string& workingDirectory)
    : portsForm{desk},
      helpForm{desk},
      directories{.WorkingDirectory = workingDirectory, .DataDirectory = {}, .SharedDirectory = {}},
      shared{machine.files},
      ports{portsForm, desk, machine.serialPorts},
      help{helpForm, machine.files, directories} {
    Bind();
}

void SupportPart::Bind() {
    portsForm.Form_Load = [this] { ports.frmPorts_Load(); };
    portsForm.lstPorts.Click = [this] { ports.lstPorts_Click(); };
    portsForm.lstDevices.Click = [this] { ports.lstDevices_Click(); };
    portsForm.lstDevices.DblClick = [this] { ports.cmdUse_Click(); };
    portsForm.lstDevices.KeyPress = [this](int& KeyAscii) { ports.Device_KeyPress(KeyAscii); };
    portsForm.txtDevice.KeyPress = [this](int& KeyAscii) { ports.Device_KeyPress(KeyAscii); };
    portsForm.cmdUse.Click = [this] { ports.cmdUse_Click(); };
    portsForm.cmdLook.Click = [this] { ports.cmdLook_Click(); };
    portsForm.cmdDone.Click = [this] { ports.cmdDone_Click(); };

    helpForm.Form_Load = [this] { help.Form5_Load(); };
    helpForm.Command1.Click = [this] { help.Command1_Click(); };
    helpForm.Command2.Click = [this] { help.Command2_Click(); };
}

void SupportPart::AddTo(ToldNames& told) const {
    told.Add("WorkingDirectory", directories.WorkingDirectory);
    told.Add("DataDirectory", directories.DataDirectory);
    told.Add("SharedDirectory", directories.SharedDirectory);
    told.Add("SharedXmlText", shared.SharedXmlText);
    told.Add("SharedXmlPath", shared.SharedXmlPath);
}

}  // namespace tallyhut
