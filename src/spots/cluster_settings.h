#pragma once

#include "forms/PacketSpotfrm.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// Where the settings hold what is the same for all contests of this machine.
inline constexpr const char* kMachineSection = "Machine";

/// What the setup keeps on this machine for all contests: how to log in to a cluster, and what maps and list leave out.
/// No password is among it.
struct ClusterSettings {
    PacketSpotfrm& form;
    SettingsStore& settings;

    /// While the form follows the store, a change of a box stores nothing.
    bool loading = false;

    void Show();
    /// Keeps what differs from what is kept. Throws PlatformError.
    void Store();
};

}  // namespace tallyhut
