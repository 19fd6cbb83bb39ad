#include "keying/winkey_setup.h"

#include <array>

#include "platform/platform_error.h"
#include "support/port_texts.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

struct ResultRow {
    std::int32_t result;
    std::string_view told;     ///< beside "WinKey Status:"
    std::string_view trouble;  ///< what it means; empty where there is nothing amiss
};

constexpr std::array kResults{
    ResultRow{kWkSuccess, "WK Success!", ""},
    ResultRow{kWkNoEcho, "No Echo Response", "Nothing answers on this port. Is the keyer connected and powered?"},
    ResultRow{kWkWrongEcho, "Echo Mismatch", "Something else than a WinKey answers on this port."},
    ResultRow{kWkNoVersion, "No Open Response", "The keyer answers, but does not open. Disconnect it and try again."},
    ResultRow{kWkNoPort, "Com Open Failed", "The port cannot be opened."},
    ResultRow{kWkNoSettings, "Get Com ST Failed", "What is on this port is no serial line."},
    ResultRow{kWkSettingsRefused, "Set Com ST Failed", "The port does not take the keyer's settings."},
    ResultRow{kWkAlreadyOpen, "WK Already Open", ""},
    ResultRow{kWkNotOpen, "WK Not Open", ""},
};

struct RecordField {
    std::string WinKeyRecord::*stored;
    TextBox frmWinKey::*shown;
};
constexpr std::array kFields{
    RecordField{&WinKeyRecord::txtWKWPM, &frmWinKey::txtWKWPM},
    RecordField{&WinKeyRecord::txtWeight, &frmWinKey::txtWeight},
    RecordField{&WinKeyRecord::txtLeadIn, &frmWinKey::txtLeadIn},
    RecordField{&WinKeyRecord::txtTail, &frmWinKey::txtTail},
    RecordField{&WinKeyRecord::txtRatio, &frmWinKey::txtRatio},
};

/// A range of a field, both ends included, and what the field becomes outside of it.
struct Range {
    double from;
    double to;
    std::string_view otherwise;
};
constexpr Range kSpeeds{0, 99, "18"};
constexpr Range kWeights{0, 99, "50"};
constexpr Range kRatios{32, 67, "50"};  // one wider at each end than the device: it knows what to do with them

/// At the messages' speed: what the device takes beyond these is its own affair.
constexpr double kAboveSpeed = 4;
constexpr double kBelowSpeed = 100;

constexpr std::int32_t kRoomBelow = 4;  ///< of the status: above it the device takes nothing
constexpr Microtick kBetweenBytesUs = 10'000;
constexpr int kBytesBetweenLooks = 16;

constexpr std::string_view kTestText = "VVV TEST DE ";

/// The field's value as a byte; nothing where it is outside of the range, and the field becomes what it then is.
std::optional<std::uint8_t> Checked(TextBox& field, const Range& range) {
    const std::optional<double> value = ParseNumber(field.Text());
    if (!value || *value < range.from || *value > range.to) {
        field.SetText(range.otherwise);
        return std::nullopt;
    }
    return ToByte(*value);
}

/// Nothing for a text that is no number; throws ValueError for one that is no byte.
std::optional<std::uint8_t> ByteIn(const TextBox& field) {
    const std::optional<double> value = ParseNumber(field.Text());
    return value ? std::optional{ToByte(*value)} : std::nullopt;
}

const ResultRow* RowOf(std::int32_t result) {
    const auto* const row = std::ranges::find(kResults, result, &ResultRow::result);
    return row == kResults.end() ? nullptr : row;
}

MessageBox NoConnectionBox(std::uint8_t port) {
    return {.title = "Unable to establish connection with Winkey.",
            .text = "Unable to establish connection with WinKey on com port " + PlainText(port) +
                    ".  Please check to make sure that you have specified the correct port and that the Winkey device "
                    "is properly connected",
            .buttons = Buttons::OK,
            .icon = Icon::Exclamation};
}

}  // namespace

void WinKeySetup::frmWinKey_Load() {
    ShowClosed();
    gWKPinConfig = WinKeyRecord{}.gWKPinConfig;
    gWKMode = WinKeyRecord{}.gWKMode;
    try {
        WinKeyRecord record{.gWKPort = gWKPort};
        const bool isWhole = ReadWinKeyRecord(store.Read(), record);
        gWKPort = record.gWKPort;
        gWKPinConfig = record.gWKPinConfig;
        gWKMode = record.gWKMode;
        for (const RecordField& field : kFields) {
            (form.*field.shown).SetText(record.*field.stored);
        }
        if (!isWhole) {
            return;  // a damaged file ends the load where it is
        }
    } catch (const PlatformError&) {
        // No file yet.
    }
    form.txtWKWPM.SetText(cwForm.Text11.Text());
    form.txtWKComPort.SetText(PlainText(gWKPort));
    ShowOptions();
    ShowTrouble();
}

void WinKeySetup::ShowOptions() {
    for (const WinKeyOption& row : kWinKeyPins) {
        if (row.value == gWKPinConfig) {
            (form.*row.option).SetValue(true);
        }
    }
    for (const WinKeyOption& row : kWinKeyModes) {
        if (row.value == gWKMode) {
            (form.*row.option).SetValue(true);
        }
    }
}

void WinKeySetup::frmWinKey_Activate() {
    ShowTrouble();
    form.tmrTrouble.SetTimerEnabled(true);
}

void WinKeySetup::tmrTrouble_Elapsed() {
    if (form.IsVisible()) {
        ShowTrouble();
    } else {
        form.tmrTrouble.SetTimerEnabled(false);
    }
}

void WinKeySetup::frmWinKey_Unload() {
    device.wk_close();
}

void WinKeySetup::cmdOpenWinkey_Click() {
    closePhonePort();
    sender.line.Close();
    std::uint8_t version = 0;
    try {
        const std::int32_t result = device.wk_open(version, gWKPort);
        if (version == 0 && result != kWkAlreadyOpen) {
            messages.panel.desk.dialogs.Show(NoConnectionBox(gWKPort));
        }
        ShowResult(result);
        if (result == kWkAlreadyOpen) {
            return;
        }
        SendWKSettings();
        if (version > 0) {
            messages.gWKVersion = version;
            form.lblVersion.SetCaption("Version # " + PlainText(version));
        }
        FocusDone();
    } catch (const PlatformError& failure) {
        messages.panel.desk.dialogs.Show(
            {.title = "Error!", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    }
}

void WinKeySetup::ShowResult(std::int32_t result) {
    openResult = result;
    if (const ResultRow* row = RowOf(result)) {
        form.lblOpenStatus.SetCaption(row->told);
    }
    ShowTrouble();
}

void WinKeySetup::FocusDone() {
    if (form.IsVisible()) {
        form.cmdDone.SetFocus();
    }
}

void WinKeySetup::cmdCloseWinkey_Click() {
    device.wk_close();
    openResult = kWkNotOpen;
    ShowClosed();
    messages.gWKVersion = 0;
    ShowTrouble();
    FocusDone();
}

void WinKeySetup::ShowClosed() {
    form.lblOpenStatus.SetCaption("Closed");
    form.lblVersion.SetCaption("Version #");
}

/// The port in words, and what is amiss with it or with the device on it.
void WinKeySetup::ShowTrouble() {
    const bool isPort = gWKPort >= kFirstPort && gWKPort <= kLastPort;
    form.lblDevice.SetCaption(isPort         ? PortToolTip(serialPorts.MeaningOf(gWKPort))
                              : gWKPort == 0 ? "none"
                                             : "no such port");
    form.lblTrouble.SetCaption(Trouble());
}

std::string WinKeySetup::Trouble() const {
    if (device.IsOpen()) {
        return device.IsSilent() ? "No answer: the keyer has fallen silent. It goes on by itself once it is back." : "";
    }
    const ResultRow* row = RowOf(openResult);
    std::string trouble{row == nullptr ? "" : row->trouble};
    if (!trouble.empty() && !device.PortFailure().empty()) {
        trouble += " (" + device.PortFailure() + ")";
    }
    return trouble;
}

void WinKeySetup::cmdDone_Click() {
    WinKeyRecord record{.gWKPort = gWKPort, .gWKPinConfig = gWKPinConfig, .gWKMode = gWKMode};
    for (const RecordField& field : kFields) {
        record.*field.stored = (form.*field.shown).Text();
    }
    form.Hide();  // before the file, so that a failure is told over the form behind
    store.Write(WriteWinKeyRecord(record));
}

void WinKeySetup::cmdStop_Click() {
    device.wk_clearbuf();
    sender.gCWBuffer.clear();
    form.cmdDone.SetFocus();
}

void WinKeySetup::Command3_Click() {
    const bool wasEmpty = sender.gCWBuffer.empty();
    sender.gCWBuffer += std::string{kTestText} + messages.preferences.gOwnCall;
    if (wasEmpty) {
        WKTransmit();
    }
    form.cmdDone.SetFocus();
}

/// By the leave-checks, each of which sends what it has checked.
void WinKeySetup::SendWKSettings() {
    txtWKWPM_LostFocus();
    txtWeight_LostFocus();
    LeadTail_LostFocus(form.txtLeadIn);
    txtRatio_LostFocus();
    device.wk_pincfg(gWKPinConfig);
    device.wk_setmode(gWKMode);
}

void WinKeySetup::txtWKComPort_LostFocus() {
    try {
        const std::optional<std::uint8_t> port = ByteIn(form.txtWKComPort);
        gWKPort = port.value_or(0);
        if (!port) {
            form.txtWKComPort.SetText("0");
        }
    } catch (const ValueError&) {
        gWKPort = 0;
        form.txtWKComPort.SetText("0");
    }
    ShowTrouble();
}

void WinKeySetup::txtWKWPM_LostFocus() {
    if (const auto speed = Checked(form.txtWKWPM, kSpeeds)) {
        device.wk_wpm(*speed);
    }
}

void WinKeySetup::txtWeight_LostFocus() {
    if (const auto weight = Checked(form.txtWeight, kWeights)) {
        device.wk_weight(*weight);
    }
}

void WinKeySetup::txtRatio_LostFocus() {
    if (const auto ratio = Checked(form.txtRatio, kRatios)) {
        device.wk_ditdah_ratio(*ratio);
    }
}

void WinKeySetup::LeadTail_LostFocus(TextBox& field) {
    try {
        const std::optional<std::uint8_t> leadIn = ByteIn(form.txtLeadIn);
        const std::optional<std::uint8_t> tail = ByteIn(form.txtTail);
        if (leadIn && tail) {
            device.wk_ptt_leadtail(*leadIn, *tail);
            return;
        }
    } catch (const ValueError&) {
        // More than a byte holds.
    }
    field.SetText("0");
}

void WinKeySetup::Digits_KeyPress(int& KeyAscii) {
    const bool accepted = KeyAscii == kKeyBackspace || KeyAscii == kKeyEsc || KeyAscii == kKeyEnter ||
                          (KeyAscii >= '0' && KeyAscii <= '9');
    if (!accepted) {
        KeyAscii = 0;
    }
}

void WinKeySetup::Mode_Click(std::uint8_t mode) {
    gWKMode = mode;
    if (messages.gWKVersion > 0) {
        SendWKSettings();
    }
}

void WinKeySetup::Pins_Click(std::uint8_t pins) {
    gWKPinConfig = pins;
    if (messages.gWKVersion > 0) {
        SendWKSettings();
    }
}

void WinKeySetup::FollowSpeed() {
    const std::optional<double> speed = ParseNumber(cwForm.Text11.Text());
    const bool isSpeed = speed && *speed > kAboveSpeed && *speed < kBelowSpeed;
    if (isSpeed && sender.gCWKeying == kKeyWinKey && messages.gWKVersion > 0) {
        device.wk_wpm(ToByte(*speed));
    }
}

void WinKeySetup::WKTransmit() {
    if (messages.gWKVersion == 0 || !device.IsOpen()) {  // unloading the form closes the device and not the version
        form.Load();
        cmdOpenWinkey_Click();
    }
    if (messages.gWKVersion == 0) {
        sender.gCWBuffer.clear();
        return;
    }
    int fed = 0;
    while (!sender.gCWBuffer.empty() && WaitForRoom()) {
        FeedOne();
        if (++fed % kBytesBetweenLooks == 0 && !sender.RunEvents()) {  // a long message holds no window
            return;
        }
    }
}

/// True when the device takes a character and there is one: events that ran meanwhile may have put another message into
/// the queue, or emptied it. Where messages stand too deep inside of each other one of those outside goes on.
bool WinKeySetup::WaitForRoom() {
    while ((messages.gWKStatus = device.wk_getstatus()) > kRoomBelow) {
        sender.clock.SleepUs(kBetweenBytesUs);
        if (!sender.RunEvents() || sender.gCWBuffer.empty()) {
            return false;
        }
    }
    return !sender.gCWBuffer.empty();
}

void WinKeySetup::FeedOne() {
    const auto code = static_cast<unsigned char>(sender.gCWBuffer.front());
    if (code > 0) {
        device.wk_char(code);
    }
    sender.gCWBuffer.erase(0, 1);
    sender.clock.SleepUs(kBetweenBytesUs);
}

}  // namespace tallyhut
