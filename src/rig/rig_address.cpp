#include "rig/rig_address.h"

#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr std::string_view kThisMachine = "127.0.0.1";
constexpr double kHighestPort = 65'535;

}  // namespace

int RigAddress::PortNumber() const {
    const double number = ParseNumber(port).value_or(0);
    return number >= 1 && number <= kHighestPort ? ToInt32(number) : 0;
}

RigAddress Completed(const RigAddress& address, const ServerRow& server) {
    RigAddress completed{.host = Trim(address.host), .port = Trim(address.port)};
    if (completed.host.empty()) {
        completed.host = kThisMachine;
    }
    if (completed.port.empty()) {
        completed.port = server.usualPort;
    }
    return completed;
}

RigAddress StoredAddress(const SettingsStore& store, const ServerRow& server) {
    return Completed({.host = store.Get(kSection, std::string{server.hostKey}),
                      .port = store.Get(kSection, std::string{server.portKey})},
                     server);
}

void StoreAddress(SettingsStore& store, const ServerRow& server, const RigAddress& address) {
    const RigAddress stored = StoredAddress(store, server);
    if (address.host != stored.host) {
        store.Set(kSection, std::string{server.hostKey}, address.host);
    }
    if (address.port != stored.port) {
        store.Set(kSection, std::string{server.portKey}, address.port);
    }
}

}  // namespace tallyhut
