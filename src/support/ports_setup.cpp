#include "support/ports_setup.h"

#include <algorithm>
#include <array>

#include "platform/platform_error.h"
#include "support/port_texts.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::string_view kAutomatic = "Automatic: the device found for this port number";

std::string DeviceRow(const SerialDevice& device) {
    return PortToolTip({.device = device, .source = PortMeaning::Source::Found});
}

}  // namespace

void PortsSetup::mnuPorts_Click() {
    dialog.ShowModal();
    dialog.Unload();
}

void PortsSetup::frmPorts_Load() {
    ShowAll(0);
}

int PortsSetup::SelectedPort() const {
    return std::max(dialog.lstPorts.Row(), 0) + kFirstPort;
}

/// Looks at the machine anew and shows the port of a row.
void PortsSetup::ShowAll(int row) {
    found = serialPorts.Devices();
    std::vector<std::string> items{std::string{kAutomatic}};
    std::ranges::transform(found, std::back_inserter(items), DeviceRow);
    dialog.lstDevices.SetItems(std::move(items));

    std::vector<std::array<std::string, 4>> cells;
    for (int number = kFirstPort; number <= kLastPort; ++number) {
        const PortMeaning meaning = serialPorts.MeaningOf(number);
        cells.push_back(
            {std::to_string(number), meaning.device.path, std::string{HowMeant(meaning)}, WhatIsThere(meaning)});
    }
    const std::size_t count = cells.size();
    dialog.lstPorts.SetRows(
        count, [cells = std::move(cells)](std::size_t at, std::size_t column) { return cells.at(at).at(column); });
    dialog.lstPorts.SelectRow(row);  // shows the port, by its Click
}

void PortsSetup::lstPorts_Click() {
    const PortMeaning meaning = serialPorts.MeaningOf(SelectedPort());
    const std::string chosen = meaning.source == PortMeaning::Source::Choice ? meaning.device.path : "";
    const auto row = std::ranges::find(found, chosen, &SerialDevice::path);
    const int rowOfFound = row == found.end() ? -1 : static_cast<int>(row - found.begin()) + 1;
    dialog.lblDevice.SetCaption("Device &for port " + std::to_string(SelectedPort()) + ':');
    dialog.lstDevices.SelectRow(chosen.empty() ? 0 : rowOfFound);
    dialog.txtDevice.SetText(chosen);
    dialog.lblNote.SetCaption(NoteOn(meaning));
    const bool fixed = meaning.source == PortMeaning::Source::CommandLine;
    for (Control* control : {static_cast<Control*>(&dialog.lstDevices), static_cast<Control*>(&dialog.txtDevice),
                             static_cast<Control*>(&dialog.cmdUse)}) {
        control->SetEnabled(!fixed);
    }
}

void PortsSetup::lstDevices_Click() {
    const int row = dialog.lstDevices.Row();
    if (row == 0) {
        dialog.txtDevice.SetText("");
    } else if (row > 0) {
        dialog.txtDevice.SetText(found.at(static_cast<std::size_t>(row - 1)).path);
    }
}

void PortsSetup::Device_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        cmdUse_Click();
    }
}

void PortsSetup::cmdUse_Click() {
    const int number = SelectedPort();
    try {
        serialPorts.Choose(number, Trim(dialog.txtDevice.Text()));
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(
            {.title = "Error.", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
        return;
    }
    ShowAll(number - kFirstPort);
}

void PortsSetup::cmdLook_Click() {
    ShowAll(SelectedPort() - kFirstPort);
}

void PortsSetup::cmdDone_Click() {
    dialog.Hide();
}

}  // namespace tallyhut
