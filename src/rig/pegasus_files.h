#pragma once

#include <string>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/settings_store.h"
#include "rig/rig_reply.h"

namespace tallyhut {

/// The exchange with the control program of a radio that has no serial commands of its own: two files in one folder.
struct PegasusFiles {
    Files& files;
    const SettingsStore& settings;
    const Environment& environment;

    /// The operator's setting "PegasusFolder" of the machine; else where the control program keeps its files when it
    /// runs in the user's compatibility layer.
    std::string Folder() const;
    /// What the control program says; empty where the file cannot be read. Any mode but CW is phone.
    RigReading ReadPegasusFile() const;
    /// Asks the control program for a frequency in MHz; silent when the file cannot be written.
    void WritePegasusFile(float Frequency, const std::string& RigMode);
};

}  // namespace tallyhut
