#include "spots/cluster_settings.h"

#include <array>
#include <string>

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";

struct StoredBox {
    const char* key;
    CheckBox PacketSpotfrm::*box;
};

constexpr std::array kBoxes{
    StoredBox{"ClusterLogin", &PacketSpotfrm::chkLogin},
    StoredBox{"ClusterKeepPassword", &PacketSpotfrm::chkKeepPassword},
    StoredBox{"SpotsNeededOnly", &PacketSpotfrm::chkNeededOnly},
    StoredBox{"SpotsNearOnly", &PacketSpotfrm::chkNearOnly},
};

struct StoredText {
    const char* key;
    TextBox PacketSpotfrm::*box;
};

constexpr std::array kTexts{
    StoredText{"ClusterCall", &PacketSpotfrm::txtLogin},
    StoredText{"ClusterLines", &PacketSpotfrm::txtLoginSend},
};

void Keep(SettingsStore& settings, const char* key, const std::string& value) {
    if (settings.Get(kSection, key) != value) {
        settings.Set(kSection, key, value);
    }
}

}  // namespace

void ClusterSettings::Show() {
    loading = true;
    for (const StoredBox& row : kBoxes) {
        (form.*row.box).SetValue(settings.Get(kSection, row.key) == "1");
    }
    for (const StoredText& row : kTexts) {
        (form.*row.box).SetText(settings.Get(kSection, row.key));
    }
    loading = false;
}

void ClusterSettings::Store() {
    if (loading) {
        return;
    }
    for (const StoredBox& row : kBoxes) {
        const bool isSet = (form.*row.box).Value();
        if (isSet || !settings.Get(kSection, row.key).empty()) {
            Keep(settings, row.key, isSet ? "1" : "0");
        }
    }
    for (const StoredText& row : kTexts) {
        Keep(settings, row.key, (form.*row.box).Text());
    }
}

}  // namespace tallyhut
