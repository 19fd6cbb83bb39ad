#pragma once

#include <functional>
#include <optional>

#include "platform/parallel_port.h"
#include "platform/serial_port.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// A serial port that somebody else has opened, for its control lines.
struct LentPort {
    SerialPort& port;
    bool dtrIsTaken = false;  ///< the line has another use there
    bool rtsIsTaken = false;
};

/// What a form has chosen to key.
struct KeyOutputs {
    bool dtr = false;
    bool rts = false;
    bool parallel = false;
};

/// The line that keys the transmitter: DTR or RTS of a serial port, or a pin of a parallel port, whichever a form has
/// chosen. Nothing of the form is remembered, but what has been put down is let up again whatever was chosen meanwhile.
struct KeyLine {
    const TextBox& number;   ///< of the serial port, 0 for none
    const TextBox& address;  ///< base address of the parallel port
    std::function<KeyOutputs()> chosen;
    SerialPort& comm;
    ParallelPorts& parallelPorts;

    /// The port of a number where somebody holds it open already, as the radio does: one cable often serves both.
    std::function<std::optional<LentPort>(int number)> lentPort = [](int) { return std::nullopt; };
    /// The port that was lent can let no line go: whoever lent it should close it.
    std::function<void()> lentPortHasFailed = [] {};
    /// Morse and phone messages may name the same port: the other one's is closed before this one opens.
    std::function<void()> closeOther = [] {};
    /// The same for the keyer device, which may be on the port of the number.
    std::function<void(int number)> closeKeyer = [](int) {};

    std::optional<LentPort> lent = {};
    int openNumber = 0;  ///< of the port that is open

    // What the key was put down on last.
    bool dtrIsDown = false;
    bool rtsIsDown = false;
    std::optional<int> registerDown = {};  ///< its address

    bool IsOpen() const { return lent ? lent->port.IsOpen() : comm.IsOpen(); }
    /// Opens the port that the form names, after closing what was open; none where it names 0. Throws PlatformError,
    /// and ValueError for a text that is no port number.
    void Open();
    /// Closes what was opened here and gives back what was lent.
    void Close();
    /// Key down or up by each output that is chosen; without an open port that is harmless. Throws PlatformError when
    /// the port has gone, and ValueError for an address that is no number.
    void Set(bool down);
    /// Key up where it was left down. A port that cannot do it any more is closed, which drops its lines.
    void Release() noexcept;

private:
    SerialPort& Port() { return lent ? lent->port : comm; }
    void SetDtr(bool on);
    void SetRts(bool on);
    int Register() const;
};

}  // namespace tallyhut
