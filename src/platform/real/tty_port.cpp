#include "platform/real/tty_port.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/path_error.h"
#include "platform/real/tty_line.h"

namespace tallyhut {
namespace {

constexpr std::size_t kMostWaiting = 65'536;
constexpr std::size_t kMostRead = 65'536;

}  // namespace

void TtyPort::SetNumber(int number) {
    CheckPortNumber(number);
    if (IsOpen()) {
        throw PathError(path_, kPortIsOpen);
    }
    setup_.number = number;
}

void TtyPort::SetSettings(const std::string& settings) {
    const SerialSettings parsed = ParseSerialSettings(settings);
    Apply(parsed, setup_.handshake);
    setup_.settings = parsed;
}

void TtyPort::SetHandshake(Handshake handshake) {
    Apply(setup_.settings, handshake);
    setup_.handshake = handshake;
}

void TtyPort::SetDtr(bool on) {
    setup_.dtr = on;
    if (IsOpen()) {
        Check(ApplyDtr(tty_, on));
    }
}

void TtyPort::SetRts(bool on) {
    setup_.rts = on;
    if (IsOpen()) {
        Check(ApplyRts(tty_, on));
    }
}

void TtyPort::Open() {
    if (IsOpen()) {
        throw PathError(path_, kPortIsOpen);
    }
    path_ = ports_.DeviceOf(setup_.number);
    if (path_.empty()) {
        throw PathError(PortName(setup_.number), "No device is there for it");
    }
    tty_ = OpenTty(path_);
    try {
        // The lines first: the system has raised them, and a transmitter may hang on one.
        if (setup_.dtr) {
            SetDtr(*setup_.dtr);
        }
        if (setup_.rts && !DriverOwnsRts(setup_.handshake)) {  // lowered, it would stay so and stop the other end
            SetRts(*setup_.rts);
        }
        if (const int reason = ApplySettings(tty_, setup_.settings, setup_.handshake); reason != 0) {
            throw PortOpenError{OpenStep::WriteSettings, PathError(path_, reason)};
        }
    } catch (const PlatformError&) {
        Release();
        throw;
    }
}

void TtyPort::Release() {
    if (IsOpen()) {
        SendWaiting();
        waiting_.clear();
        CloseTty(tty_, setup_.handshake);
    }
}

int TtyPort::OutputCount() const {
    if (!IsOpen() || SendWaiting() != 0) {
        return 0;
    }
    return static_cast<int>(waiting_.size()) + QueuedOutput(tty_);
}

void TtyPort::Write(std::string_view bytes) {
    if (!IsOpen()) {
        throw PathError(PortName(setup_.number), kPortIsClosed);
    }
    Check(SendWaiting());
    if (waiting_.size() + bytes.size() > kMostWaiting) {
        throw PathError(path_, "The device takes no bytes");
    }
    waiting_ += bytes;
    Check(SendWaiting());
}

std::string TtyPort::ReadAll() {
    std::string received;
    if (!IsOpen()) {
        return received;
    }
    SendWaiting();  // a device that has gone shows at the next write; reading is silent
    std::array<char, 4096> block{};
    while (received.size() < kMostRead) {
        const ssize_t count = read(tty_.Number(), block.data(), std::min(block.size(), kMostRead - received.size()));
        if (count > 0) {
            received.append(block.data(), static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {  // nothing there, or the line has hung up
            break;
        }
    }
    return received;
}

int TtyPort::SendWaiting() const {
    while (!waiting_.empty()) {
        const ssize_t count = write(tty_.Number(), waiting_.data(), waiting_.size());
        if (count > 0) {
            waiting_.erase(0, static_cast<std::size_t>(count));
        } else if (count == 0 || errno == EAGAIN) {
            return 0;
        } else if (errno != EINTR) {
            const int reason = errno;
            waiting_.clear();  // nobody is left to take it
            return reason;
        }
    }
    return 0;
}

void TtyPort::Apply(const SerialSettings& settings, Handshake handshake) const {
    if (IsOpen()) {
        Check(ApplySettings(tty_, settings, handshake));
    }
}

void TtyPort::Check(int errorNumber) const {
    if (errorNumber != 0) {
        throw PathError(path_, errorNumber);
    }
}

}  // namespace tallyhut
