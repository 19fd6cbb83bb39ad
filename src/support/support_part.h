#pragma once

#include "forms/Form5.h"
#include "platform/machine.h"
#include "support/help_page.h"
#include "support/ports_setup.h"
#include "support/shared_preferences.h"
#include "support/told_names.h"

namespace tallyhut {

/// What every other part stands on: the folders, what a family of programs shares, the choice of serial ports, the help
/// page.
struct SupportPart {
    SupportPart(Machine& machine, Desk& desk, const std::string& workingDirectory);

    frmPorts portsForm;
    Form5 helpForm;

    Directories directories;
    SharedPreferences shared;
    PortsSetup ports;
    HelpPage help;

    void AddTo(ToldNames& told) const;

private:
    void Bind();
};

}  // namespace tallyhut
