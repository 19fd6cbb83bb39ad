#include "network/network_part.h"

namespace tallyhut {

NetworkPart::NetworkPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig)
    : form{desk},
      settings{machine.settings},
      origin{.app = settings.app, .stationName = machine.datagramSockets.HostName()},
      ids{machine.files, support.directories},
      sender{desk, machine.datagramSockets},
      contacts{log.contest, settings.contacts, origin, ids, sender, machine.clock},
      radio{desk, rig.rigLine, settings.radio, origin, sender},
      setup{form, desk, settings, origin, sender, radio} {
    Bind(log, rig);
    setup.TakeStored();
}

void NetworkPart::Bind(LogPart& log, RigPart& rig) {
    BindForm();
    log.form1.Form_Activate = [this] { setup.Form1_Activate(); };
    log.form1.mnuNetwork.Click = [this] { form.Show(); };
    // A name that cannot be kept is told, and no more: what became of the contact is on the disk.
    const auto call = [this](const std::function<void()>& news) { form.desk.Call(news); };
    log.commit.logged = [=, this](std::int32_t row) { call([&] { contacts.Logged(row); }); };
    log.editing.edited = [=, this](const Contact& before, std::int32_t row) {
        call([&] { contacts.Edited(before, row); });
    };
    log.editing.deleted = [=, this](const Contact& contact) { call([&] { contacts.Deleted(contact); }); };
    log.fileMenu.replaced = [=, this] { call([this] { contacts.LogReplaced(); }); };
    rig.rigLine.looked = [this] { radio.Look(); };
    sender.failuresChanged = [this] { setup.ShowFailure(); };
}

void NetworkPart::BindForm() {
    form.Form_Load = [this] { setup.frmNetwork_Load(); };
    form.chkContacts.Click = [this] { setup.chkContacts_Click(); };
    form.chkRadio.Click = [this] { setup.chkRadio_Click(); };
    form.txtContacts.LostFocus = [this] { setup.TakeContacts(); };
    form.txtRadio.LostFocus = [this] { setup.TakeRadio(); };
    form.txtApp.LostFocus = [this] { setup.TakeApp(); };
    form.txtContacts.Change = [this] { setup.ShowFailure(); };
    form.txtRadio.Change = [this] { setup.ShowFailure(); };
    form.cmdDone.Click = [this] { setup.cmdDone_Click(); };
}

}  // namespace tallyhut
