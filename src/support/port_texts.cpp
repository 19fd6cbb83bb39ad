#include "support/port_texts.h"

#include <array>

namespace tallyhut {
namespace {

/// In the order of the sources.
constexpr std::array<std::string_view, 4> kHowMeant{"", "--port", "chosen", "automatic"};

constexpr std::string_view kNoDevice =
    "No device was found for this port. Plug it in and look again, or type the path of its device.";
constexpr std::string_view kNotThere = "Nothing stands at this path now. ";
constexpr std::string_view kNoRight =
    "You have no right to open this device: add yourself to the group dialout (sudo adduser YOURNAME dialout) and log "
    "in again. ";
constexpr std::string_view kFixed = "The device was given with --port and stays for as long as the program runs. ";

}  // namespace

std::string_view HowMeant(const PortMeaning& meaning) {
    return kHowMeant.at(static_cast<std::size_t>(meaning.source));
}

std::string WhatIsThere(const PortMeaning& meaning) {
    const SerialDevice& device = meaning.device;
    const std::string trouble = !device.isThere ? "not there" : !device.mayOpen ? "no right to open it" : "";
    return trouble.empty() || device.description.empty() ? trouble + device.description
                                                         : trouble + ", " + device.description;
}

std::string NoteOn(const PortMeaning& meaning) {
    if (meaning.source == PortMeaning::Source::Nothing) {
        return std::string{kNoDevice};
    }
    std::string note;
    if (!meaning.device.isThere) {
        note += kNotThere;
    }
    if (!meaning.device.mayOpen) {
        note += kNoRight;
    }
    if (meaning.source == PortMeaning::Source::CommandLine) {
        note += kFixed;
    }
    return note.substr(0, note.find_last_not_of(' ') + 1);
}

std::string PortToolTip(const PortMeaning& meaning) {
    if (meaning.source == PortMeaning::Source::Nothing) {
        return "no device";
    }
    const std::string there = WhatIsThere(meaning);
    return there.empty() ? meaning.device.path : meaning.device.path + ", " + there;
}

void SetPortToolTips(ControlArray<Option>& optComm, const SerialPorts& ports) {
    for (int i = optComm.First(); i <= optComm.Last(); ++i) {
        optComm(i).SetToolTip(PortToolTip(ports.MeaningOf(i + kFirstPort)));
    }
}

}  // namespace tallyhut
