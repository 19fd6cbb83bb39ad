#pragma once

#include "platform/real/descriptor.h"
#include "platform/serial_settings.h"

namespace tallyhut {

/// A serial port on a terminal device of the machine, a pseudo terminal included.
struct TtyPort : SerialPort {
    /// The ports say which device the number means; they must outlive this one.
    explicit TtyPort(const SerialPorts& ports) : ports_{ports} {}
    TtyPort(const TtyPort&) = delete;
    TtyPort& operator=(const TtyPort&) = delete;
    TtyPort(TtyPort&&) = delete;
    TtyPort& operator=(TtyPort&&) = delete;
    ~TtyPort() override { Release(); }

    void SetNumber(int number) override;
    void SetSettings(const std::string& settings) override;
    void SetHandshake(Handshake handshake) override;
    void SetDtr(bool on) override;
    void SetRts(bool on) override;
    void Open() override;
    void Close() override { Release(); }
    bool IsOpen() const override { return tty_.IsOpen(); }
    int OutputCount() const override;
    /// Throws, and takes none of the bytes, when more than 64 KiB would wait for a line that takes nothing.
    void Write(std::string_view bytes) override;
    /// At most 64 KiB a call, so that a flood cannot hold the program; the rest comes with the next.
    std::string ReadAll() override;

private:
    void Apply(const SerialSettings& settings, Handshake handshake) const;
    void Check(int errorNumber) const;
    /// Sends what the line takes of what waits; returns 0, or the errno value of a device that has gone.
    int SendWaiting() const;
    void Release();

    const SerialPorts& ports_;
    SerialSetup setup_;
    Descriptor tty_;
    std::string path_;             ///< of the device that is open
    mutable std::string waiting_;  ///< written, and not yet taken by the line
};

}  // namespace tallyhut
