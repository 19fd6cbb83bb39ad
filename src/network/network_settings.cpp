#include "network/network_settings.h"

#include <utility>

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kAppKey = "SendAs";
constexpr const char* kOn = "1";
constexpr const char* kOff = "0";

struct ChoiceKeys {
    const char* isOn;
    const char* addresses;
};

constexpr ChoiceKeys kContacts{"SendContacts", "SendContactsTo"};
constexpr ChoiceKeys kRadio{"SendRadio", "SendRadioTo"};

std::string Or(std::string text, const char* usual) {
    return text.empty() ? usual : std::move(text);
}

NewsChoice Stored(const SettingsStore& store, const ChoiceKeys& keys) {
    const std::string isOn = store.Get(kSection, keys.isOn);
    return {.isOn = isOn == kOn,
            .addresses = Or(store.Get(kSection, keys.addresses), kUsualAddress),
            .wasOn = !isOn.empty()};
}

void Keep(SettingsStore& store, const ChoiceKeys& keys, NewsChoice& known, const NewsChoice& choice) {
    const NewsChoice before = std::exchange(known, {.isOn = choice.isOn,
                                                    .addresses = Or(Trim(choice.addresses), kUsualAddress),
                                                    .wasOn = choice.isOn || known.wasOn});
    if (known.isOn != before.isOn) {
        store.Set(kSection, keys.isOn, known.isOn ? kOn : kOff);
    }
    if (known.addresses != before.addresses) {
        store.Set(kSection, keys.addresses, known.addresses);
    }
}

}  // namespace

void NetworkSettings::Read() {
    contacts = Stored(store, kContacts);
    radio = Stored(store, kRadio);
    app = Or(store.Get(kSection, kAppKey), kUsualApp);
}

void NetworkSettings::SetContacts(const NewsChoice& choice) {
    Keep(store, kContacts, contacts, choice);
}

void NetworkSettings::SetRadio(const NewsChoice& choice) {
    Keep(store, kRadio, radio, choice);
}

void NetworkSettings::SetApp(const std::string& sender) {
    const std::string before = std::exchange(app, Or(Trim(sender), kUsualApp));
    if (app != before) {
        store.Set(kSection, kAppKey, app);
    }
}

}  // namespace tallyhut
