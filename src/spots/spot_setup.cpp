#include "spots/spot_setup.h"

#include <algorithm>
#include <array>

#include "values/format.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

/// An option of the form and what it is in the file.
struct StoredOption {
    std::string SpotRecord::*field;
    std::string_view stored;
    Option PacketSpotfrm::*option;
};

constexpr std::array kOptions{
    StoredOption{&SpotRecord::baud, "1200", &PacketSpotfrm::optBaud12},
    StoredOption{&SpotRecord::baud, "2400", &PacketSpotfrm::optBaud24},
    StoredOption{&SpotRecord::baud, "4800", &PacketSpotfrm::optBaud48},
    StoredOption{&SpotRecord::baud, "9600", &PacketSpotfrm::optBaud96},
    StoredOption{&SpotRecord::baud, "14400", &PacketSpotfrm::optBaud144},
    StoredOption{&SpotRecord::baud, "19200", &PacketSpotfrm::optBaud192},
    StoredOption{&SpotRecord::parity, "O", &PacketSpotfrm::optParityOdd},
    StoredOption{&SpotRecord::parity, "N", &PacketSpotfrm::optParityNone},
    StoredOption{&SpotRecord::parity, "E", &PacketSpotfrm::optParityEven},
    StoredOption{&SpotRecord::dataBits, "7", &PacketSpotfrm::optData7},
    StoredOption{&SpotRecord::dataBits, "8", &PacketSpotfrm::optData8},
    StoredOption{&SpotRecord::stopBits, "1", &PacketSpotfrm::optStop1},
    StoredOption{&SpotRecord::stopBits, "2", &PacketSpotfrm::optStop2},
    StoredOption{&SpotRecord::power, "N", &PacketSpotfrm::optPowerNone},
    StoredOption{&SpotRecord::power, "R", &PacketSpotfrm::optPowerRTS},
    StoredOption{&SpotRecord::power, "D", &PacketSpotfrm::optPowerDTR},
};

constexpr std::array kHandshakeOptions{&PacketSpotfrm::Option1, &PacketSpotfrm::Option2, &PacketSpotfrm::Option3,
                                       &PacketSpotfrm::Option4};

/// The kinds of source that show a control, as bits.
enum Shown : unsigned { kForTnc = 1, kForTelnet = 2, kForEngine = 4, kForAll = 7 };

struct ShownControl {
    std::string_view name;
    unsigned shownFor;
};

constexpr std::array kShown{
    ShownControl{"Frame2", kForAll},           ShownControl{"OptBand", kForAll},
    ShownControl{"OptList", kForAll},          ShownControl{"chkDX", kForAll},
    ShownControl{"txtSent", kForAll},          ShownControl{"Label6", kForAll},
    ShownControl{"Command1", kForAll},         ShownControl{"Command2", kForAll},
    ShownControl{"txtHex", kForTnc},           ShownControl{"Label1", kForTnc},
    ShownControl{"Label2", kForTnc},           ShownControl{"fraPort", kForTnc},
    ShownControl{"fraBaud", kForTnc},          ShownControl{"fraParity", kForTnc},
    ShownControl{"fraData", kForTnc},          ShownControl{"fraStop", kForTnc},
    ShownControl{"fraHandshaking", kForTnc},   ShownControl{"fraPower", kForTnc},
    ShownControl{"Label3", kForTelnet},        ShownControl{"Label7", kForTelnet},
    ShownControl{"txtTelnetHost", kForTelnet}, ShownControl{"txtTelnetPort", kForTelnet},
    ShownControl{"chkLogin", kForTelnet},      ShownControl{"lblLogin", kForTelnet},
    ShownControl{"txtLogin", kForTelnet},      ShownControl{"lblPassword", kForTelnet},
    ShownControl{"txtPassword", kForTelnet},   ShownControl{"chkKeepPassword", kForTelnet},
    ShownControl{"lblLoginSend", kForTelnet},  ShownControl{"txtLoginSend", kForTelnet},
    ShownControl{"lblNodes", kForTelnet},      ShownControl{"lstNodes", kForTelnet},
    ShownControl{"cmdAddNode", kForTelnet},    ShownControl{"cmdRemoveNode", kForTelnet},
    ShownControl{"chkNeededOnly", kForAll},    ShownControl{"chkNearOnly", kForAll},
    ShownControl{"lblEngine", kForEngine},     ShownControl{"txtEngine", kForEngine},
};

struct SourceRow {
    std::string_view type;
    unsigned bit;
    std::string_view howToSend;  ///< Label6
    std::string_view help;
};

constexpr std::string_view kBandMapHelp =
    "The program keeps the last 50 DX posts regardless of band in memory. Your band map will cycle through these posts "
    "as they are received.  Posts received within the last 10 minutes will be yellow; posts 10-30 minutes old will be "
    "white and posts 30-60 minutes old will be gray.";

constexpr std::array kSources{
    SourceRow{kNoSource, 0, "", "Choose where spots come from. Without a source the main form shows the log alone."},
    SourceRow{
        kTnc, kForTnc, "Send text  (Ctrl C or Esc for TNC Command mode):",
        "A packet TNC on a serial port. Choose its port and speed, click Open Port, and connect to a cluster with "
        "the TNC's own commands. Posts that are only heard count too."},
    SourceRow{
        kTelnet, kForTelnet, "Type text to send and press enter:",
        "A DX cluster on the Internet. Enter its host and port and click Open Port. When the cluster asks for it, "
        "type your call and press Enter; or let Log in and reconnect do it."},
    SourceRow{kPacketEngine, kForEngine, "Send text (use : to send cmds such as :C Q7ZZQ or :D)",
              "A packet engine on this or another computer. Start the engine and click Open Port. Posts that it hears "
              "are taken without a connection; :C and a call connect to a station, :D ends that."},
};

const SourceRow* SourceOf(std::string_view type) {
    const auto* const row = std::ranges::find_if(
        kSources, [&](const SourceRow& source) { return UpperCase(source.type) == UpperCase(type); });
    return row == kSources.end() ? nullptr : row;
}

constexpr std::string_view kFrequencyAsked = "Frequency in kHz";
constexpr int kFrequencyAskedAt = 3;

}  // namespace

void SpotSetup::Form_Load() {
    LoadSpotSettings();
}

void SpotSetup::LoadSpotSettings() {
    std::string text;
    try {
        text = store.files.Read(store.Path());
    } catch (const PlatformError&) {
        ShowLayout();  // no setup yet: no row of the list is chosen
        return;
    }
    loading = true;
    ReadSpotRecord(text, link);
    ShowSettings();
    loading = false;
    ShowLayout();
    if (link.type != kNoSource) {
        transports.Command1_Click();
    }
    transports.lines.Forget();
}

void SpotSetup::ShowSettings() {
    form.chkConvToHex.SetValue(link.convertsToHex != 0);
    form.OptList.SetValue(link.showsList);
    form.txtHex.SetText(link.commandCharacter);
    form.txtTelnetPort.SetText(link.telnetPort);
    form.txtTelnetHost.SetText(link.telnetHost);
    const SourceRow* source = SourceOf(link.type);
    link.type = source != nullptr ? source->type : kNoSource;
    form.List1.SelectRow(source != nullptr ? static_cast<int>(source - kSources.data()) : -1);
    if (link.commPort >= kFirstPort && link.commPort <= kLastPort) {
        form.optComm(link.commPort - kFirstPort).SetValue(true);
    }
    for (const StoredOption& row : kOptions) {
        if (link.*row.field == row.stored) {
            (form.*row.option).SetValue(true);
        }
    }
    if (link.handshaking >= 1 && link.handshaking <= kHandshakeOptions.size()) {
        (form.*kHandshakeOptions.at(link.handshaking - 1U)).SetValue(true);
    }
}

void SpotSetup::TakeSerialOptions() {
    if (loading) {
        return;
    }
    for (const StoredOption& row : kOptions) {
        if ((form.*row.option).Value()) {
            link.*row.field = row.stored;
        }
    }
    for (int i = form.optComm.First(); i <= form.optComm.Last(); ++i) {
        if (form.optComm(i).Value()) {
            link.commPort = static_cast<std::uint8_t>(i + kFirstPort);
        }
    }
    for (std::size_t i = 0; i < kHandshakeOptions.size(); ++i) {
        if ((form.*kHandshakeOptions.at(i)).Value()) {
            link.handshaking = static_cast<std::uint8_t>(i + 1);
        }
    }
}

void SpotSetup::List1_Click() {
    const int row = form.List1.Row();
    if (loading || row < 0) {
        return;
    }
    form.chkDX.SetValue(false);
    transports.Command2_Click();
    link.type = kSources.at(static_cast<std::size_t>(row)).type;
    if (link.type == kTnc) {
        SetTncDefaults();
    }
    ShowLayout();
}

void SpotSetup::SetTncDefaults() {
    form.optBaud96.SetValue(true);
    form.optParityNone.SetValue(true);
    form.optData8.SetValue(true);
    form.optStop1.SetValue(true);
    form.Option3.SetValue(true);
    form.txtHex.SetText("03");
    TakeSerialOptions();
}

/// What tells whether a source is open, and Spot Last, belong to no kind of source.
void SpotSetup::ShowLayout() {
    const SourceRow& source = *SourceOf(link.type);
    for (const ShownControl& row : kShown) {
        form.Find(row.name)->SetVisible((row.shownFor & source.bit) != 0);
    }
    form.Label6.SetCaption(source.howToSend);
    std::string help{source.help};
    if (source.bit != 0) {
        help.append(kLineEnd).append(kLineEnd).append(kBandMapHelp);
    }
    form.txtUnProcessed.SetText(help + "\r\n\r\n");
}

void SpotSetup::cmdDone_Click() {
    TakeSerialOptions();
    if (link.type != kNoSource && !form.Label4.State().visible) {
        transports.Command1_Click();
    }
    savePref();
    SaveSpotSettings();
    PacketResize();
    form.Hide();
}

void SpotSetup::SaveSpotSettings() {
    link.convertsToHex = form.chkConvToHex.Value() ? 1 : 0;
    link.listsDxOnly = form.chkDX.Value() ? 1 : 0;
    link.showsList = form.OptList.Value();
    link.commandCharacter = form.txtHex.Text();
    link.telnetPort = form.txtTelnetPort.Text();
    link.telnetHost = form.txtTelnetHost.Text();
    store.files.Replace(store.Path(), WriteSpotRecord(link));
}

void SpotSetup::Command3_Click() {
    form.txtSent.SetVisible(true);
    form.txtSent.SetText("");
    const Contact last = contacts.gContactCount() == 0 ? Contact{} : contacts.Last();
    const double megahertz = ParseNumber(last.Frq).value_or(0);
    const std::string frequency =
        megahertz != 0 ? FormatNumber(megahertz * 1'000, "#######.0") : std::string{kFrequencyAsked};
    form.txtSent.SetText("DX " + frequency + ' ' + last.Call + ' ' + last.Sec + ' ');
    form.txtSent.SetFocus();
    if (megahertz != 0) {
        form.txtSent.SetCaret(static_cast<int>(form.txtSent.Text().size()));
    } else {
        form.txtSent.Select(kFrequencyAskedAt, static_cast<int>(kFrequencyAsked.size()));
    }
}

}  // namespace tallyhut
