#pragma once

#include <string>

#include "forms/PacketSpotfrm.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// Where the packet engine is, HOST:PORT: as the command line says, else as the operator typed it last on this machine,
/// else on this machine itself.
struct EngineAddress {
    PacketSpotfrm& form;
    SettingsStore& settings;
    std::string given = {};  ///< by the command line; empty for nothing

    void Show();
    /// Keeps what was typed. Throws PlatformError.
    void Store();
    std::string Known() const;
};

}  // namespace tallyhut
