#include "spots/spot_transports.h"

#include <algorithm>
#include <array>

#include "spots/spot_line.h"
#include "spots/tcp_failure_text.h"
#include "toolkit/key.h"
#include "values/hex.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

struct HandshakeRow {
    std::uint8_t stored;
    Handshake handshake;
    bool raisesRts;
};

constexpr std::array kHandshakes{
    HandshakeRow{1, Handshake::None, false},
    HandshakeRow{2, Handshake::XonXoff, false},
    HandshakeRow{3, Handshake::Rts, true},
    HandshakeRow{4, Handshake::RtsXonXoff, true},
};

constexpr std::string_view kTwoLineEnds = "\r\n\r\n";
constexpr std::string_view kCaption = "DX Spotting Setup";
constexpr std::string_view kNoEngine =
    "The packet engine does not answer.\n\n"
    "- Obtain the packet engine's software and install it.\n"
    "- Configure it for your TNC or sound card, with its TCP interface switched on.\n"
    "- Start it.\n"
    "- Click Open from this program.";

constexpr float kTicksToAge = 360;
constexpr Tick kLongestPoll = 20;
constexpr std::size_t kLongPacket = 71;  ///< a text of this length goes out at its next blank

std::string WithCrLf(std::string_view text) {
    std::string all;
    for (const char character : text) {
        all += character == '\n' ? std::string{kLineEnd} : std::string{character};
    }
    return all;
}

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string all;
    for (const std::string_view part : parts) {
        all += part;
    }
    return all;
}

}  // namespace

void SpotTransports::Command1_Click() {
    terminal.Replace(Joined({"** Attempting to Open Port **", kTwoLineEnds}));
    comm.Close();
    if (link.type != kNoSource) {
        form.Label4.SetVisible(true);
        if (form.IsVisible()) {
            form.txtSent.SetFocus();
        }
    }
    if (link.type == kTnc) {
        OpenTnc();
    } else if (link.type == kTelnet) {
        OpenTelnet();
    } else if (link.type == kPacketEngine) {
        OpenEngine();
    }
}

void SpotTransports::OpenTnc() {
    try {
        comm.Close();
        comm.SetNumber(link.commPort);
        comm.SetSettings(Joined({link.baud, ",", link.parity, ",", link.dataBits, ",", link.stopBits}));
        comm.SetDtr(false);
        comm.SetRts(false);
        for (const HandshakeRow& row : kHandshakes) {
            if (row.stored == link.handshaking) {
                comm.SetHandshake(row.handshake);
                if (row.raisesRts) {
                    comm.SetRts(true);
                }
            }
        }
        comm.Open();
        if (link.power == "R") {
            comm.SetRts(true);
        } else if (link.power == "D") {
            comm.SetDtr(true);
        }
        form.Timer1.SetTimerEnabled(true);
        terminal.Append(Joined({"** TNC Serial Port Open **", kTwoLineEnds}));
    } catch (const PlatformError&) {
        desk.dialogs.Beep();
        terminal.Append(Joined({"** Unable to open TNC Serial Port **", kTwoLineEnds}));
        desk.dialogs.Show(
            MessageBox{.title = "Invalid Comm Settings.",
                       .text = "The comm port that you selected for DX Spotting is either in use, invalid or the "
                               "settings that you have selected are invalid.  Please select another combination "
                               "or choose None for your DX Spot selection."});
        form.Label4.SetVisible(false);
        form.Timer1.SetTimerEnabled(false);
    }
}

void SpotTransports::OpenTelnet() {
    const std::string& host = form.txtTelnetHost.Text();
    const double port = ParseNumber(form.txtTelnetPort.Text()).value_or(0);
    const int number = std::clamp(port, 0.0, 65'536.0) == port ? static_cast<int>(port) : 0;
    login.Close();
    if (form.chkLogin.Value()) {
        login.Open(Trim(host), number);
    } else {
        socket.Connect(Trim(host), number);
    }
    terminal.Replace(Joined({"Attempting connection to: ", host, ":", form.txtTelnetPort.Text(), kTwoLineEnds}));
    form.Timer1.SetTimerEnabled(true);
}

/// Where the engine is, as the form shows it: HOST:PORT.
void SpotTransports::OpenEngine() {
    const std::string ownCall = Trim(preferences.gOwnCall);
    if (ownCall.empty()) {
        desk.dialogs.Show(MessageBox{.title = "Call Sign Required!",
                                     .text = "Please enter your call sign on the setup form to transmit!"});
        form.Label4.SetVisible(false);
        return;
    }
    EndConnection();  // the engine begins anew, without it
    const std::string& address = form.txtEngine.Text();
    const std::size_t colon = address.rfind(':');
    const double port = colon == std::string::npos ? 0 : ParseNumber(address.substr(colon + 1)).value_or(0);
    TellEngineStart(
        engine.AGWStartPoll(address.substr(0, colon), static_cast<int>(std::clamp(port, 0.0, 65'536.0)), ownCall));
}

void SpotTransports::TellEngineStart(AgwStart start) {
    engineStarts = start == kAgwConnecting;
    if (start != kAgwNone) {
        form.Timer1.SetTimerEnabled(true);
    }
    if (start == kAgwReady) {
        terminal.Append(Joined({kLineEnd, "** Successfully connected to AGW Packet Engine **", kTwoLineEnds}));
    } else if (start == kAgwNone) {
        desk.dialogs.Show(
            MessageBox{.title = "Unable to connect to the AGW Packet Engine.", .text = std::string{kNoEngine}});
        form.Label4.SetVisible(false);
        terminal.Append(WithCrLf(kNoEngine));
        form.Show();
        engine.AGWClose();
        form.Timer1.SetTimerEnabled(false);
    }
}

void SpotTransports::Command2_Click() {
    if (!MeansToListen()) {
        return;
    }
    form.Label4.SetVisible(false);
    terminal.Append(Joined({kTwoLineEnds, "** Port Closed **"}));
    comm.Close();
    login.Close();
    socket.Close();
    if (link.type == kPacketEngine) {
        EndConnection();
        engine.AGWClose();
        engineStarts = false;
    }
    form.Timer1.SetTimerEnabled(false);
}

void SpotTransports::EndConnection() {
    if (!connectedCall.empty()) {
        engine.AGWPutData(connectedCall, "", 'd');
        form.SetCaption(kCaption);
        connectedCall.clear();
    }
}

void SpotTransports::Timer1_Timer() {
    if (desk.DialogIsOpen()) {
        return;  // what comes waits until the operator has answered
    }
    if (link.type == kTnc) {
        PollSerial();
    } else if (link.type == kPacketEngine) {
        PollEngine();
    }
    if (++ticks >= kTicksToAge) {
        ticks = 0;
        age();
    }
}

/// What no TNC sends in a third of a second, a device that sends without end may: its lines wait for the next tick, and
/// nothing is read before they are taken.
void SpotTransports::PollSerial() {
    if (!lines.HasLine()) {
        lines.Add(comm.ReadAll());
    }
    const Tick end = desk.clock.TickMs() + kLongestPoll;
    std::string line;
    while (desk.clock.TickMs() < end && lines.Take(line)) {
        TakeLine(line);
    }
}

void SpotTransports::TakeLine(const std::string& line) {
    if (terminal.HasShown(line)) {
        return;
    }
    if (BeginsPost(line)) {
        terminal.Append(line);
        received(line);
    } else if (!form.chkDX.Value()) {
        terminal.Append(line);
    }
}

void SpotTransports::Socket_Arrived() {
    if (login.IsOpen()) {
        login.Arrived();
        return;
    }
    const TcpEvent event = socket.Take();
    if (event.kind == TcpEvent::Kind::Chunk) {
        TakeChunk(event.bytes);
    } else if (event.kind == TcpEvent::Kind::Failed) {
        Socket_Error(event.failure);
    }
}

/// One chunk is one line: what begins in its middle is no post, and of several posts the first one counts.
void SpotTransports::TakeChunk(std::string_view chunk) {
    const bool listsAll = !form.chkDX.Value();
    if (listsAll) {
        terminal.Append(chunk);
    }
    if (BeginsPost(chunk)) {
        received(chunk);
        if (!listsAll) {
            terminal.Append(chunk);
        }
    }
}

void SpotTransports::Socket_Error(int number) {
    if (login.IsOpen()) {
        login.Fail(number);
        return;
    }
    socket.Close();
    terminal.Append(TextOfFailure(number));
    Command2_Click();
    desk.dialogs.Beep();
}

void SpotTransports::PollEngine() {
    if (engineStarts) {
        if (const AgwStart start = engine.Started(); start != kAgwConnecting) {
            TellEngineStart(start);
        }
        return;
    }
    AgwFrame frame;
    if (engine.AGWGetData(frame)) {
        TakeFrame(frame);
    }
}

void SpotTransports::TakeFrame(const AgwFrame& frame) {
    const FrameTexts texts = TextsOf(frame.kind, frame.call, frame.data, connectedCall.empty());
    const bool listsAll = !form.chkDX.Value();
    const std::size_t post = UpperCase(texts.plain).find("DX");
    if (!terminal.HasShown(texts.plain) && post <= 1) {
        terminal.Append(texts.plain);
        received(texts.plain);
    }
    if (!connectedCall.empty() && connectedCall == frame.call && listsAll && !BeginsPost(texts.plain)) {
        terminal.Append(texts.plain);
    }
    if (connectedCall.empty() && listsAll && UpperCase(texts.full).find("DX ") == std::string::npos &&
        !BeginsPost(texts.plain)) {
        terminal.Append(texts.full);
    }
    if (frame.kind == 'd' && !connectedCall.empty() && frame.call == connectedCall) {
        Disconnect();
    }
    if (frame.kind == 'c' && connectedCall.empty()) {
        connectedCall = frame.call;
        terminal.Append(Joined({"** Connected to ", connectedCall, " **"}));
        form.SetCaption(Joined({kCaption, " - Connected to ", connectedCall}));
        desk.dialogs.Beep();
    }
}

void SpotTransports::Disconnect() {
    desk.dialogs.Beep();
    desk.dialogs.Beep();
    terminal.Append(Joined({kLineEnd, "** Disconnected from ", connectedCall, " **", kLineEnd}));
    form.SetCaption(kCaption);
    connectedCall.clear();
}

void SpotTransports::txtSent_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        if (!MeansToListen()) {
            Command1_Click();
        }
        Send();
    } else if (KeyAscii == kKeyEsc) {
        KeyAscii = link.type == kPacketEngine ? ':' : 0;
    }
}

void SpotTransports::Send() {
    const std::string text = form.txtSent.Text();
    if (link.type == kTnc && comm.IsOpen()) {
        comm.Write(text + '\r');
    } else if (link.type == kTelnet && socket.IsConnected()) {
        socket.Send(Joined({text, kLineEnd}));
    } else if (link.type == kTelnet) {
        terminal.Append(
            Joined({"**  Connection not yet established.  Please wait a moment and try again.", kTwoLineEnds}));
    } else if (link.type == kPacketEngine && form.Timer1.Enabled()) {
        SendAgwText(text);
    }
    form.txtSent.SetText("");
}

/// Keeps long messages inside a packet while they are typed.
void SpotTransports::txtSent_Change() {
    const std::string& text = form.txtSent.Text();
    if (link.type == kPacketEngine && form.Timer1.Enabled() && text.size() >= kLongPacket && text.back() == ' ') {
        SendAgwText(text.substr(0, text.size() - 1));
        form.txtSent.SetText("");
    }
}

void SpotTransports::SendAgwText(const std::string& text) {
    if (!text.starts_with(':')) {
        if (!connectedCall.empty()) {
            engine.AGWPutData(connectedCall, text + '\r', 'D');
        }
        return;
    }
    const std::string command = UpperCase(text.substr(1, 1));
    if (command == "D" && !connectedCall.empty()) {
        engine.AGWPutData(connectedCall, "", 'd');
    } else if (command == "C") {
        ConnectStation(UpperCase(Trim(text.substr(2))));
    }
}

void SpotTransports::ConnectStation(std::string_view call) {
    if (call.empty()) {
        desk.dialogs.Show(MessageBox{.title = "Call sign Required",
                                     .text = "You must enter a call sign to connect to such as :C Q7ZZQ"});
        return;
    }
    engine.AGWPutData(call, "", 'c');
    engine.AGWPutData(call, "", 'P');
}

void SpotTransports::Form_KeyDown(int& KeyCode, int Shift) {
    if (KeyCode != kKeyEsc && !(KeyCode == 'C' && Shift == kCtrl)) {
        return;
    }
    form.chkDX.SetValue(false);
    if (!MeansToListen()) {
        Command1_Click();
    }
    if (link.type == kTnc && comm.IsOpen()) {
        const std::uint32_t code = ParseHexNumber(Trim(form.txtHex.Text())).value_or(0);
        comm.Write(std::string(1, static_cast<char>(code & 0xFFU)));
        KeyCode = 0;
        form.txtSent.SetFocus();
    }
    if (form.txtSent.Text().empty()) {
        form.txtSent.SetFocus();
    }
}

void SpotTransports::Form_Unload() {
    login.Close();
    if (!connectedCall.empty()) {
        engine.AGWPutData(connectedCall, "", 'd');
    }
    if (link.type == kTnc) {  // that of an engine is ended by closing it
        engine.AGWClose();
    }
}

}  // namespace tallyhut
