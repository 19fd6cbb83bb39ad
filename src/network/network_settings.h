#pragma once

#include <string>

#include "platform/settings_store.h"

namespace tallyhut {

/// Where news go that nobody has given an address: this machine, on the port of such readers.
inline constexpr const char* kUsualAddress = "127.0.0.1:12060";

/// What readers insist on finding as the sender.
inline constexpr const char* kUsualApp = "N1MM";

/// One kind of news.
struct NewsChoice {
    bool isOn = false;
    std::string addresses = kUsualAddress;  ///< as typed
    bool wasOn = false;                     ///< now or ever on this machine

    bool operator==(const NewsChoice&) const = default;
};

/// What the operator has chosen to send, kept on this machine. What is chosen counts at once; where it cannot be stored
/// that is a PlatformError behind it.
struct NetworkSettings {
    SettingsStore& store;

    NewsChoice contacts = {};
    NewsChoice radio = {};
    std::string app = kUsualApp;

    void Read();
    // Each stores what differs. An empty address or sender becomes the usual one.
    void SetContacts(const NewsChoice& choice);
    void SetRadio(const NewsChoice& choice);
    void SetApp(const std::string& sender);
};

}  // namespace tallyhut
