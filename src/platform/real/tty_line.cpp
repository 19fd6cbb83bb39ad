#include "platform/real/tty_line.h"

// Linux's own settings of a terminal, for they take any speed. The C library's header cannot stand beside them.
#include <asm/termbits.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>

#include <cerrno>

#include "platform/path_error.h"

namespace tallyhut {
namespace {

constexpr cc_t kXon = 0x11;
constexpr cc_t kXoff = 0x13;
/// A device without handshake sends so many bytes in an eighth of a second at 1200 baud.
constexpr int kShortCommand = 16;

bool HasXonXoff(Handshake handshake) {
    return handshake == Handshake::XonXoff || handshake == Handshake::RtsXonXoff;
}

tcflag_t ParityFlags(char parity) {
    switch (parity) {
        case 'E':
            return PARENB;
        case 'O':
            return PARENB | PARODD;
        default:
            return 0;
    }
}

tcflag_t DataFlags(int dataBits) {
    switch (dataBits) {
        case 5:
            return CS5;
        case 6:
            return CS6;
        case 7:
            return CS7;
        default:
            return CS8;
    }
}

int ResultOf(int returned) {
    return returned == 0 ? 0 : errno;
}

int ApplyLine(const Descriptor& tty, int line, bool on) {
    const int result = ResultOf(ioctl(tty.Number(), on ? TIOCMBIS : TIOCMBIC, &line));
    return result == ENOTTY ? 0 : result;
}

}  // namespace

bool DriverOwnsRts(Handshake handshake) {
    return handshake == Handshake::Rts || handshake == Handshake::RtsXonXoff;
}

Descriptor OpenTty(const std::string& path) {
    // Without O_NONBLOCK a modem's device would be waited for until it has a carrier.
    Descriptor tty{open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)};
    if (!tty.IsOpen()) {
        throw PathError(path, errno);
    }
    struct termios2 present {};
    if (ioctl(tty.Number(), TCGETS2, &present) != 0) {
        throw PortOpenError{OpenStep::ReadSettings, PathError(path, errno)};
    }
    // The lock first: it stops another program of the superuser too, whom the exclusive mode lets pass.
    if (flock(tty.Number(), LOCK_EX | LOCK_NB) != 0) {
        throw PathError(path, errno == EWOULDBLOCK ? EBUSY : errno);
    }
    if (ioctl(tty.Number(), TIOCEXCL) != 0) {
        throw PathError(path, errno);
    }
    return tty;
}

void CloseTty(Descriptor& tty, Handshake handshake) {
    const int queued = QueuedOutput(tty);
    if (queued > kShortCommand || (queued > 0 && handshake != Handshake::None)) {
        ioctl(tty.Number(), TCFLSH, TCOFLUSH);  // else the system's close would wait up to half a minute
    }
    ioctl(tty.Number(), TIOCNXCL);  // a pseudo terminal would keep the mode for as long as its other end is open
    tty = Descriptor{};
}

int ApplySettings(const Descriptor& tty, const SerialSettings& settings, Handshake handshake) {
    struct termios2 raw {};
    raw.c_iflag = IGNBRK | IGNPAR | (HasXonXoff(handshake) ? IXON | IXOFF : 0U);
    raw.c_cflag = CREAD | CLOCAL | HUPCL | BOTHER | DataFlags(settings.dataBits) | ParityFlags(settings.parity) |
                  (settings.stopBits == 2 ? CSTOPB : 0U) | (DriverOwnsRts(handshake) ? CRTSCTS : 0U);
    raw.c_ispeed = static_cast<speed_t>(settings.baud);
    raw.c_ospeed = static_cast<speed_t>(settings.baud);
    raw.c_cc[VMIN] = 1;  // with 0 nothing to read could not be told from a hang-up
    raw.c_cc[VSTART] = kXon;
    raw.c_cc[VSTOP] = kXoff;
    return ResultOf(ioctl(tty.Number(), TCSETS2, &raw));
}

int ApplyDtr(const Descriptor& tty, bool on) {
    return ApplyLine(tty, TIOCM_DTR, on);
}

int ApplyRts(const Descriptor& tty, bool on) {
    return ApplyLine(tty, TIOCM_RTS, on);
}

int QueuedOutput(const Descriptor& tty) {
    int queued = 0;
    return ioctl(tty.Number(), TIOCOUTQ, &queued) == 0 ? queued : 0;
}

}  // namespace tallyhut
