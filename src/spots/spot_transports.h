#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "contest/preferences.h"
#include "forms/PacketSpotfrm.h"
#include "platform/agw_engine.h"
#include "platform/serial_port.h"
#include "spots/cluster_login.h"
#include "spots/spot_record.h"
#include "spots/spot_terminal.h"
#include "spots/terminal_text.h"
#include "toolkit/desk.h"

namespace tallyhut {

// The kinds of source, by the rows of the list.
inline constexpr std::string_view kNoSource = "None";
inline constexpr std::string_view kTnc = "TNC";
inline constexpr std::string_view kTelnet = "Telnet";
inline constexpr std::string_view kPacketEngine = "AGW Packet Engine";

/// The wires that spots come over, and the terminal that shows what comes: a TNC on a serial port and a packet engine,
/// both polled, and a cluster whose data are events. It knows nothing of logins and commands; what the operator types
/// is what the source gets, and nothing is connected anew by itself, unless the operator wants a cluster looked after
/// (ClusterLogin).
struct SpotTransports {
    PacketSpotfrm& form;
    SerialPort& comm;
    TcpSocket& socket;
    AgwEngine& engine;
    Desk& desk;
    const Preferences& preferences;
    SpotRecord& link;  ///< how the source is reached, as the form last committed it

    SpotTerminal terminal{form.txtUnProcessed};
    ClusterLogin login{form, socket, desk, preferences};

    std::string connectedCall = {};  ///< of the engine; empty while it monitors

    ReceivedLines lines = {};   ///< of the TNC
    float ticks = 0;            ///< of the timer, since the labels aged last
    bool engineStarts = false;  ///< not known yet whether the engine is there

    /// A line that begins with "DX": of a cluster the whole chunk, whose first line counts.
    std::function<void(std::string_view post)> received = [](std::string_view) {};
    /// About every two minutes while a source is open: the labels of the band map age without new spots.
    std::function<void()> age = [] {};

    /// Open.
    void Command1_Click();
    /// Close. Does nothing while no source is meant to be open.
    void Command2_Click();
    void Timer1_Timer();
    /// The socket has something for the program: one event.
    void Socket_Arrived();
    /// The connection has failed; also by a driver that says so.
    void Socket_Error(int number);
    void Form_KeyDown(int& KeyCode, int Shift);
    void Form_Unload();
    void txtSent_KeyPress(int& KeyAscii);
    void txtSent_Change();

private:
    bool MeansToListen() const { return form.Label4.State().visible; }

    void OpenTnc();
    void OpenTelnet();
    void OpenEngine();
    void TellEngineStart(AgwStart start);
    void PollSerial();
    void TakeLine(const std::string& line);
    void PollEngine();
    void TakeFrame(const AgwFrame& frame);
    void TakeChunk(std::string_view chunk);
    /// With the station that is connected by the engine, from this side; nothing where none is.
    void EndConnection();
    void Disconnect();

    void Send();
    void SendAgwText(const std::string& text);
    void ConnectStation(std::string_view call);
};

}  // namespace tallyhut
