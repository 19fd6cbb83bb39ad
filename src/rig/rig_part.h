#pragma once

#include <memory>

#include "log/log_part.h"
#include "rig/frequency_test.h"
#include "rig/rig_line.h"
#include "rig/rig_poll.h"
#include "rig/rig_setup.h"
#include "rig/rig_tune.h"

namespace tallyhut {

/// The radio: its form, the poll, the commands and the forms that tune it.
struct RigPart {
    RigPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log);

    RigControlfrm rigForm;
    frmRigTune tuneForm;
    frmFrequencyTest frequencyTestForm;

    std::unique_ptr<SerialPort> comComm1;
    RigSettings rigSettings;
    RigState rigState;
    PegasusFiles pegasus;
    Radio radio;
    BandConversion bandConversion;
    RigConnection rigConnection;
    RigPoll rigPoll;
    RigCommands rigCommands;
    RigSetup rigSetup;
    RigLine rigLine;
    RigTune rigTune;
    FrequencyTest frequencyTest;

    /// What the start does where a radio is chosen: its port is opened and polled, the form stays hidden.
    void OpenPort();

    void AddTo(ToldNames& told) const;

private:
    void Bind(Form1& form1, const SerialPorts& ports);
    void BindRigForm(const SerialPorts& ports);
    void BindTuneForm();
    void BindFrequencyTest();
};

}  // namespace tallyhut
