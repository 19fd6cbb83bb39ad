#pragma once

#include <string>

#include "platform/settings_store.h"
#include "rig/rig_table.h"

namespace tallyhut {

/// Where a server of radios listens, as the operator has typed it.
struct RigAddress {
    std::string host;
    std::string port;

    bool operator==(const RigAddress&) const = default;

    /// 0 for a text that is no port.
    int PortNumber() const;
};

/// The address with what a kind of server usually has, where nothing is typed.
RigAddress Completed(const RigAddress& address, const ServerRow& server);

/// What is stored for a kind of server, completed.
RigAddress StoredAddress(const SettingsStore& store, const ServerRow& server);
/// Writes what has changed. Throws PlatformError.
void StoreAddress(SettingsStore& store, const ServerRow& server, const RigAddress& address);

}  // namespace tallyhut
