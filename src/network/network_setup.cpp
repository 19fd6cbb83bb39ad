#include "network/network_setup.h"

#include "values/text.h"

namespace tallyhut {
namespace {

std::string FaultIn(const TextBox& field) {
    return field.State().refused ? ReadAddresses(field.Text()).fault : "";
}

}  // namespace

void NetworkSetup::TakeStored() {
    settings.Read();
    origin.app = settings.app;
    Aim(News::Contacts, settings.contacts);
    Aim(News::Radio, settings.radio);
}

void NetworkSetup::Aim(News news, const NewsChoice& choice) {
    sender.SendTo(news, choice.isOn ? ReadAddresses(choice.addresses).addresses : std::vector<NetworkAddress>{});
}

void NetworkSetup::frmNetwork_Load() {
    dialog.txtContacts.SetText(settings.contacts.addresses);
    dialog.txtRadio.SetText(settings.radio.addresses);
    dialog.txtApp.SetText(settings.app);
    dialog.chkContacts.SetValue(settings.contacts.isOn);
    dialog.chkRadio.SetValue(settings.radio.isOn);
    Holds(dialog.txtContacts);
    Holds(dialog.txtRadio);
    ShowFailure();
}

void NetworkSetup::chkContacts_Click() {
    ChooseContacts({.isOn = dialog.chkContacts.Value(), .addresses = settings.contacts.addresses});
}

void NetworkSetup::chkRadio_Click() {
    ChooseRadio({.isOn = dialog.chkRadio.Value(), .addresses = settings.radio.addresses});
}

bool NetworkSetup::TakeContacts() {
    ChooseContacts({.isOn = settings.contacts.isOn, .addresses = dialog.txtContacts.Text()});
    dialog.txtContacts.SetText(settings.contacts.addresses);
    return Holds(dialog.txtContacts);
}

bool NetworkSetup::TakeRadio() {
    ChooseRadio({.isOn = settings.radio.isOn, .addresses = dialog.txtRadio.Text()});
    dialog.txtRadio.SetText(settings.radio.addresses);
    return Holds(dialog.txtRadio);
}

void NetworkSetup::TakeApp() {
    TellingFailure([this] { settings.SetApp(dialog.txtApp.Text()); });
    origin.app = settings.app;
    dialog.txtApp.SetText(settings.app);
}

void NetworkSetup::Form1_Activate() {
    if (dialog.IsVisible()) {
        TakeApp();
        TakeContacts();
        TakeRadio();
    }
}

void NetworkSetup::ChooseContacts(const NewsChoice& choice) {
    const NewsChoice before = settings.contacts;
    TellingFailure([this, &choice] { settings.SetContacts(choice); });
    if (settings.contacts != before) {
        Aim(News::Contacts, settings.contacts);
    }
}

void NetworkSetup::ChooseRadio(const NewsChoice& choice) {
    const NewsChoice before = settings.radio;
    TellingFailure([this, &choice] { settings.SetRadio(choice); });
    if (settings.radio != before) {
        Aim(News::Radio, settings.radio);
        radioNews.Forget();
        radioNews.Look();
    }
}

bool NetworkSetup::Holds(TextBox& field) {
    field.SetRefused(!ReadAddresses(field.Text()).fault.empty());
    ShowFailure();
    return !field.State().refused;
}

void NetworkSetup::cmdDone_Click() {
    TakeApp();
    for (const auto& [take, field] : {std::pair{&NetworkSetup::TakeContacts, &dialog.txtContacts},
                                      std::pair{&NetworkSetup::TakeRadio, &dialog.txtRadio}}) {
        if (!(this->*take)()) {
            field->SetFocus();
            return;
        }
    }
    dialog.Hide();
}

void NetworkSetup::ShowFailure() {
    if (!dialog.IsLoaded()) {
        return;
    }
    std::string text = FaultIn(dialog.txtContacts);
    if (text.empty()) {
        text = FaultIn(dialog.txtRadio);
    }
    if (text.empty()) {
        text = sender.LastFailure();
    }
    if (dialog.IsVisible() && !text.empty() && text != dialog.lblNetwork.Caption()) {
        desk.Announce(text);
    }
    dialog.lblNetwork.SetCaption(text);
    dialog.lblNetwork.SetRefused(!text.empty());
}

/// A choice that cannot be stored counts all the same.
template <typename Store>
void NetworkSetup::TellingFailure(Store store) {
    try {
        store();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(
            {.title = "Network", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    }
}

}  // namespace tallyhut
