#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform_error.h"

namespace tallyhut {

/// Which step of an opening failed, behind the opening of the device itself.
enum class OpenStep { ReadSettings, WriteSettings };

/// A device that could be opened and is no serial line, or does not take the settings.
struct PortOpenError : PlatformError {
    PortOpenError(OpenStep failed, const PlatformError& reason) : PlatformError{reason}, step{failed} {}

    OpenStep step;
};

enum class Handshake { None, XonXoff, Rts, RtsXonXoff };

/// One serial line of the machine, as one form holds it. Bytes are kept as they come, NUL bytes included; no operation
/// ever blocks. What is set before Open is kept and applied at opening; while the port is open it is applied at once.
/// Failures throw PlatformError with the system's own reason.
struct SerialPort {
    virtual ~SerialPort() = default;

    /// 1 to 10; which device a number means is the machine's setting. Throws while the port is open.
    virtual void SetNumber(int number) = 0;
    /// Baud, parity letter, data bits and stop bits, "4800,N,8,2". Throws for a text that is no such settings.
    virtual void SetSettings(const std::string& settings) = 0;
    virtual void SetHandshake(Handshake handshake) = 0;
    /// The level of a control line; on a closed port it is remembered, which is harmless.
    virtual void SetDtr(bool on) = 0;
    virtual void SetRts(bool on) = 0;
    virtual void Open() = 0;
    /// Does nothing on a closed port. What waits in the output is dropped, but for a last short command that is on its
    /// way; closing never waits for a device that takes nothing.
    virtual void Close() = 0;
    virtual bool IsOpen() const = 0;
    /// Bytes written that have not left the machine yet; 0 on a closed port or a pulled cable.
    virtual int OutputCount() const = 0;
    /// Takes all bytes; what the line does not take at once follows with later calls. Throws on a closed port and when
    /// the device has gone.
    virtual void Write(std::string_view bytes) = 0;
    /// All that has arrived since the last call; empty when nothing has, on a closed port, and when the device has
    /// gone.
    virtual std::string ReadAll() = 0;
};

/// A device that a port number can mean.
struct SerialDevice {
    std::string path;
    std::string description = {};  ///< for the operator; empty where the system tells none
    bool isThere = true;           ///< false when nothing stands at the path
    bool mayOpen = true;           ///< false when the right to open it is missing

    bool operator==(const SerialDevice&) const = default;
};

/// What a port number means at this moment.
struct PortMeaning {
    enum class Source { Nothing, CommandLine, Choice, Found };

    SerialDevice device = {};  ///< with an empty path where the number means nothing
    Source source = Source::Nothing;
};

inline constexpr int kFirstPort = 1;
inline constexpr int kLastPort = 10;

/// The serial lines of the machine.
struct SerialPorts {
    virtual ~SerialPorts() = default;

    /// A closed port of number 1 with the settings "9600,N,8,1" and without handshake; its control lines stay as the
    /// machine raises them until they are set.
    virtual std::unique_ptr<SerialPort> NewPort() = 0;
    /// For a number from 1 to 10: the device that the command line names, else the operator's choice, else the device
    /// of that number, counted from 1, among those that are there.
    virtual PortMeaning MeaningOf(int number) const = 0;
    /// What is there to choose from, in the order in which numbers are given to devices that nobody chose.
    virtual std::vector<SerialDevice> Devices() const = 0;
    /// Stores the operator's choice; an empty path goes back to the device found. Throws PlatformError.
    virtual void Choose(int number, const std::string& path) = 0;

    /// The path of the device that a number means now; empty when it means none.
    std::string DeviceOf(int number) const { return MeaningOf(number).device.path; }
};

}  // namespace tallyhut
