#pragma once

#include "contest/preferences.h"
#include "forms/RigControlfrm.h"
#include "platform/serial_port.h"
#include "rig/pegasus_files.h"
#include "rig/rig_settings.h"
#include "rig/rig_state.h"
#include "rig/rig_table.h"

namespace tallyhut {

/// The radio as poll, commands and setup share it: what the operator has set, how it is reached, what is known of it.
struct Radio {
    RigControlfrm& form;
    RigState& state;
    RigSettings& settings;
    Preferences& preferences;  ///< for gRigName alone
    SerialPort& comComm1;
    PegasusFiles& pegasus;  ///< of the radio that has no port

    /// The row of the radio that is chosen now. Another one may be chosen whenever events run.
    const RigRow& Row() const { return RigNamed(preferences.gRigName); }
};

}  // namespace tallyhut
