#pragma once

#include <optional>
#include <string>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// The far end of a pair of pseudo terminals; the program opens the near one as its serial device.
class PseudoTerminal {
public:
    PseudoTerminal();

    const std::string& Path() const { return path_; }
    /// How many of the bytes the line took; it takes some thousands that nobody has read.
    std::size_t Send(const std::string& bytes) const;
    /// All that the program has sent since the last call.
    std::string Receive() const;
    /// As a pulled cable.
    void HangUp() { far_ = Descriptor{}; }

    /// The settings of the line as they stand: baud, stop bits, and which of the handshakes, "56000 2 IXON IXOFF
    /// CRTSCTS". A pseudo terminal has eight data bits and no parity whatever it is told.
    std::string Settings() const;

private:
    std::string path_;
    Descriptor far_;
};

/// A device other than a terminal that answers calls of ioctl instead of the system: 0, or the errno value of a
/// failure; nothing for calls that do not concern it. Null is none.
using AnswerOfDevice = std::optional<int> (*)(unsigned long request, void* argument);
extern AnswerOfDevice answerOfDevice;

/// Sees the calls of this process on terminals while it lives, for what a pseudo terminal does not show. One at a time.
class TerminalCalls {
public:
    TerminalCalls();
    TerminalCalls(const TerminalCalls&) = delete;
    TerminalCalls& operator=(const TerminalCalls&) = delete;
    TerminalCalls(TerminalCalls&&) = delete;
    TerminalCalls& operator=(TerminalCalls&&) = delete;
    ~TerminalCalls();

    /// What was asked of control lines and output, "DTR on, RTS off, flush", since the last call.
    std::string Take();
    /// Data bits and parity of the last settings asked for: "7E".
    std::string AskedForm() const { return form; }
    /// Whether the last settings let the system lower the lines when the device is closed, by whomever.
    bool LowersAtClose() const { return hangsUp; }
    /// What Take would have said when the settings were asked for.
    std::string AskedBeforeSettings() const { return setBefore; }

    int lineFailure = 0;   ///< errno value with which a control line fails; 0 as on a pseudo terminal
    int queuedOutput = 0;  ///< what the system says still waits in the output

    std::string noted;
    std::string form;
    bool hangsUp = false;
    std::string setBefore;
};

}  // namespace tallyhut
