#include "spots/cluster_settings.h"

#include <array>
#include <string>

namespace tallyhut {
namespace {

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
    if (settings.Get(kMachineSection, key) != value) {
        settings.Set(kMachineSection, key, value);
    }
}

}  // namespace

void ClusterSettings::Show() {
    loading = true;
    for (const StoredBox& row : kBoxes) {
        (form.*row.box).SetValue(settings.Get(kMachineSection, row.key) == "1");
    }
    for (const StoredText& row : kTexts) {
        (form.*row.box).SetText(settings.Get(kMachineSection, row.key));
    }
    loading = false;
}

void ClusterSettings::Store() {
    if (loading) {
        return;
    }
    for (const StoredBox& row : kBoxes) {
        const bool isSet = (form.*row.box).Value();
        if (isSet || !settings.Get(kMachineSection, row.key).empty()) {
            Keep(settings, row.key, isSet ? "1" : "0");
        }
    }
    for (const StoredText& row : kTexts) {
        Keep(settings, row.key, (form.*row.box).Text());
    }
}

}  // namespace tallyhut
