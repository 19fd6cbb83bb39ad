#include "rig/rig_setup.h"

#include <algorithm>

#include "platform/platform_error.h"
#include "rig/option_groups.h"
#include "toolkit/running.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kFileName = "RigCntrl.txt";
constexpr std::string_view kNoResponse = "No Response";

const MessageBox kInvalidPortBox{
    .title = "Invalid Comm Settings.",
    .text =
        "The comm port that you selected for rig interface is either in use, invalid or the settings that you have "
        "selected are invalid.  Please select another combination or choose None for your rig selection.",
    .buttons = Buttons::OK,
    .icon = Icon::Exclamation};

const MessageBox kNotPollingBox{
    .title = "You must be polling your rig to test this function.",
    .text =
        "You must be polling your rig to test this function.  Please select your rig type and click the Test "
        "command button.",
    .buttons = Buttons::OK,
    .icon = Icon::Exclamation};

std::vector<std::string> RigNames() {
    std::vector<std::string> names;
    names.reserve(kRigs.size());
    for (const RigRow& rig : kRigs) {
        names.emplace_back(rig.name);
    }
    return names;
}

std::string_view LinkText(RigServerLink link) {
    switch (link) {
        case RigServerLink::Closed:
            return "Closed";
        case RigServerLink::Connecting:
            return "Connecting";
        case RigServerLink::Connected:
            return "Connected";
        case RigServerLink::NoAnswer:
            return "No answer";
    }
    return {};
}

}  // namespace

void RigSetup::RigControlfrm_Load() {
    radio.form.List1.SetItems(RigNames());
    {
        const Running loading{FormLoading};
        ReadRigSettings();
        commands.LoadModePlan();
    }
    radio.state.VfoDigit = RigState::kNoVfoYet;
    ShowServerLink();
}

void RigSetup::ReadRigSettings() {
    try {
        ShowRecord(ReadRigRecord(files.Read(WorkingFile(directories, kFileName))));
    } catch (const PlatformError&) {
        ShowRecord({});  // no file yet
    }
}

void RigSetup::ShowRecord(const RigRecord& record) {
    RigControlfrm& form = radio.form;
    RigSettings& settings = radio.settings;
    settings = record.settings;
    form.chkConvToHex.SetValue(record.convertToHex == 1);
    form.chkFrequency.SetValue(record.useFrequency == 1);
    Choose(form, kModeByOptions, PlainText(record.modeBy));
    form.txtFreq.SetText(record.settings.frequencyString);
    form.txtMode.SetText(record.settings.modeString);
    if (!record.rigName.empty()) {
        radio.preferences.gRigName = record.rigName;
    }
    const std::vector<std::string>& rigs = form.List1.Items();
    const auto row = std::ranges::find(rigs, radio.preferences.gRigName);
    form.List1.SelectRow(row == rigs.end() ? -1 : static_cast<int>(row - rigs.begin()));
    form.chkConvToHex.SetVisible(radio.Row().choosesConversion);
    form.Label10.SetVisible(radio.Row().addressHint == AddressHint::WhenClickedOrLoaded);
    ShowLinkOfRow();
    const int port = settings.commPort - 1;
    if (port >= form.optComm.First() && port <= form.optComm.Last()) {
        form.optComm(port).SetValue(true);
    }
    Choose(form, kBaudOptions, TrimEnd(settings.baud));
    Choose(form, kParityOptions, settings.parity);
    Choose(form, kDataOptions, settings.dataBits);
    Choose(form, kStopOptions, settings.stopBits);
    Choose(form, kPowerOptions, settings.power);
    Choose(form, kPollOptions, settings.pollRate);
}

void RigSetup::WriteRigSettings() {
    const RigControlfrm& form = radio.form;
    const RigRecord record{.settings = radio.settings,
                           .rigName = radio.preferences.gRigName,
                           .convertToHex = static_cast<std::uint8_t>(form.chkConvToHex.Value()),
                           .useFrequency = static_cast<std::uint8_t>(form.chkFrequency.Value()),
                           .modeBy = ToByte(TrimmedNumber(Chosen(form, kModeByOptions)))};
    files.Replace(WorkingFile(directories, kFileName), WriteRigRecord(record));
}

void RigSetup::List1_Click() {
    RigControlfrm& form = radio.form;
    const int row = form.List1.Row();
    if (FormLoading || row < 0) {
        return;
    }
    Command2_Click();
    radio.preferences.gRigName = form.List1.Items().at(static_cast<std::size_t>(row));
    form.txtFreq.SetText("");
    form.txtMode.SetText("");
    form.chkConvToHex.SetValue(false);
    form.chkConvToHex.SetVisible(false);
    form.Label10.SetVisible(false);
    const RigRow& rig = radio.Row();
    Choose(form, kBaudOptions, rig.serial.baud);
    Choose(form, kDataOptions, rig.serial.dataBits);
    Choose(form, kStopOptions, rig.serial.stopBits);
    Choose(form, kParityOptions, rig.serial.parity);
    form.txtFreq.SetText(rig.frequencyString);
    form.txtMode.SetText(rig.modeString);
    form.chkConvToHex.SetValue(rig.convertsToHex);
    form.chkConvToHex.SetVisible(rig.choosesConversion);
    form.Label10.SetVisible(rig.addressHint != AddressHint::Never);
    ShowLinkOfRow();
}

/// A server's address stands in the place of the port's settings; it is not asked by strings.
void RigSetup::ShowLinkOfRow() {
    RigControlfrm& form = radio.form;
    const bool isServer = radio.Row().link == RigLink::Server;
    for (FrameBox* frame :
         {&form.fraPort, &form.fraBaud, &form.fraParity, &form.fraData, &form.fraStop, &form.fraPower}) {
        frame->SetVisible(!isServer);
    }
    form.txtFreq.SetEnabled(!isServer);
    form.txtMode.SetEnabled(!isServer);
    form.fraRigServer.SetVisible(isServer);
    if (isServer) {
        const RigAddress address = connection.StoredAddress();
        form.txtRigHost.SetText(address.host);
        form.txtRigPort.SetText(address.port);
    }
}

void RigSetup::ShowServerLink() {
    radio.form.lblRigLink.SetCaption(LinkText(connection.server.Link()));
}

void RigSetup::txtFreq_Change() {
    radio.settings.frequencyString = radio.form.txtFreq.Text();
}

void RigSetup::txtMode_Change() {
    radio.settings.modeString = radio.form.txtMode.Text();
}

void RigSetup::Command1_Click() {
    if (radio.Row().link != RigLink::None) {
        radio.form.lblMode.SetCaption(kNoResponse);
        radio.form.lblFreq.SetCaption(kNoResponse);
        ShowPolling(true);
        radio.state.RigMode.clear();
    }
    CommitForm();
    if (radio.Row().link == RigLink::None) {
        return;
    }
    OpenRadio();
    if (connection.IsOpen()) {
        radio.form.tmrGetData.Elapsed();
        StartPolling();
    } else {
        ShowPolling(false);
    }
}

void RigSetup::CommitForm() {
    const RigControlfrm& form = radio.form;
    RigSettings& settings = radio.settings;
    for (int i = form.optComm.First(); i <= form.optComm.Last(); ++i) {
        if (form.optComm(i).Value()) {
            settings.commPort = static_cast<std::uint8_t>(i + 1);
        }
    }
    settings.baud = BaudText(Chosen(form, kBaudOptions));
    settings.parity = Chosen(form, kParityOptions);
    settings.dataBits = Chosen(form, kDataOptions);
    settings.stopBits = Chosen(form, kStopOptions);
    settings.portSettings = PortSettings(settings);
    settings.power = Chosen(form, kPowerOptions);
    settings.pollRate = Chosen(form, kPollOptions);
    connection.address =
        Completed({.host = form.txtRigHost.Text(), .port = form.txtRigPort.Text()}, radio.Row().server);
}

void RigSetup::OpenRadio() {
    try {
        connection.Open();
    } catch (const PlatformError&) {
        StopPolling();
        desk.dialogs.Show(kInvalidPortBox);
        if (!radio.form.IsVisible()) {
            radio.form.ShowModal();
        }
    }
}

void RigSetup::StartPolling() {
    const auto* rate = std::ranges::find(kPollRates, radio.settings.pollRate, &PollRate::letter);
    if (rate != kPollRates.end()) {
        radio.form.tmrGetData.SetInterval(rate->intervalMs);
    }
    radio.state.polls = true;
    radio.state.missedPolls = 0;
    radio.state.heardAt = desk.clock.TickMs();
    radio.state.lost = false;
    radio.state.frequencyHeard = false;
    radio.form.tmrGetData.SetTimerEnabled(!radio.state.commanding);
}

void RigSetup::StopPolling() {
    radio.state.polls = false;
    radio.state.lost = false;
    connection.EndReopening();
    radio.form.tmrGetData.SetTimerEnabled(false);
    commands.Abandon();
    pollingEnded();
}

void RigSetup::ShowPolling(bool polling) {
    radio.form.Command2.SetVisible(polling);
    radio.form.Label2.SetVisible(polling);
}

void RigSetup::Command2_Click() {
    radio.form.lblMode.SetCaption("");
    radio.form.lblFreq.SetCaption("");
    radio.form.lblUnProcess.SetCaption("");
    StopPolling();
    ShowPolling(false);
    connection.Close();
}

void RigSetup::Command3_Click() {
    if (!radio.state.polls) {
        desk.dialogs.Show(kNotPollingBox);
        return;
    }
    openFrequencyTest();
}

void RigSetup::Command4_Click() {
    desk.clipboard.SetText(radio.form.lblUnProcess.Caption());
}

void RigSetup::cmdDone_Click() {
    if (radio.Row().link != RigLink::None) {
        Command1_Click();
    }
    preferencesFile.SavePref();
    WriteRigSettings();
    connection.StoreAddress();
    radio.form.Hide();
}

/// The poll and the commands live on the form: its close box hides it, with what stands on it.
void RigSetup::RigControlfrm_QueryUnload(bool& Cancel) {
    Cancel = true;
    radio.form.Hide();
}

void RigSetup::RigControlfrm_Unload() {
    StopPolling();
    SayFarewell();
    connection.Close();
}

void RigSetup::SayFarewell() {
    if (radio.Row().farewell.empty() || !radio.comComm1.IsOpen()) {
        return;
    }
    try {
        radio.comComm1.Write(radio.Row().farewell);
    } catch (const PlatformError&) {
        // A radio that is gone needs no farewell.
    }
}

}  // namespace tallyhut
