#include "rig/rig_address.h"

#include <charconv>
#include <system_error>

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr std::string_view kThisMachine = "127.0.0.1";
constexpr int kHighestPort = 65'535;

}  // namespace

int RigAddress::PortNumber() const {
    int number = 0;
    const auto [end, failure] = std::from_chars(port.data(), port.data() + port.size(), number);
    const bool isPort = failure == std::errc{} && end == port.data() + port.size() && number >= 1;
    return isPort && number <= kHighestPort ? number : 0;
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
