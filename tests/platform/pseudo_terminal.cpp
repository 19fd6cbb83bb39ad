#include "tests/platform/pseudo_terminal.h"

#include <asm/termbits.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <stdexcept>
#include <utility>

namespace tallyhut {

AnswerOfDevice answerOfDevice = nullptr;

namespace {

TerminalCalls* watching = nullptr;

void Note(const std::string& call) {
    watching->noted += (watching->noted.empty() ? "" : ", ") + call;
}

std::string FormOf(const struct termios2& settings) {
    constexpr std::array kDataBits{'5', '6', '7', '8'};  // CS5 to CS8 count up
    std::string form{kDataBits.at((settings.c_cflag & CSIZE) / CS6)};
    form += (settings.c_cflag & PARENB) == 0U ? 'N' : (settings.c_cflag & PARODD) == 0U ? 'E' : 'O';
    return form;
}

/// What a call on a terminal is answered with instead of going to the system; 0 lets it go there.
int FailureOfWatched(unsigned long request, void* argument) {
    switch (request) {
        case TIOCMBIS:
        case TIOCMBIC:
            Note(std::string{*static_cast<int*>(argument) == TIOCM_DTR ? "DTR" : "RTS"} +
                 (request == TIOCMBIS ? " on" : " off"));
            return watching->lineFailure;
        case TCFLSH:
            Note("flush");
            return 0;
        case TCSETS2:
            watching->form = FormOf(*static_cast<struct termios2*>(argument));
            watching->hangsUp = (static_cast<struct termios2*>(argument)->c_cflag & HUPCL) != 0U;
            watching->setBefore = watching->noted;
            return 0;
        default:
            return 0;
    }
}

}  // namespace
}  // namespace tallyhut

/// Stands before the C library's own in this test program.
extern "C" int ioctl(int descriptor, unsigned long request, ...) noexcept {
    std::va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    if (tallyhut::answerOfDevice != nullptr) {
        if (const std::optional<int> answer = tallyhut::answerOfDevice(request, argument)) {
            errno = *answer;
            return *answer == 0 ? 0 : -1;
        }
    }
    if (tallyhut::watching != nullptr) {
        if (const int failure = tallyhut::FailureOfWatched(request, argument); failure != 0) {
            errno = failure;
            return -1;
        }
        if (request == TIOCOUTQ && tallyhut::watching->queuedOutput != 0) {
            *static_cast<int*>(argument) = tallyhut::watching->queuedOutput;
            return 0;
        }
    }
    return static_cast<int>(syscall(SYS_ioctl, descriptor, request, argument));
}

namespace tallyhut {

PseudoTerminal::PseudoTerminal() : far_{posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)} {
    if (!far_.IsOpen() || grantpt(far_.Number()) != 0 || unlockpt(far_.Number()) != 0) {
        throw std::runtime_error("no pseudo terminal");
    }
    path_ = ptsname(far_.Number());
    struct termios2 raw {};
    raw.c_cflag = CS8 | CREAD | B38400;
    raw.c_cc[VMIN] = 1;
    ioctl(far_.Number(), TCSETS2, &raw);
}

std::size_t PseudoTerminal::Send(const std::string& bytes) const {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = write(far_.Number(), bytes.data() + sent, bytes.size() - sent);
        if (count <= 0) {
            break;
        }
        sent += static_cast<std::size_t>(count);
    }
    return sent;
}

std::string PseudoTerminal::Receive() const {
    std::string received;
    std::array<char, 4096> block{};
    for (ssize_t count = 1; count > 0;) {
        count = read(far_.Number(), block.data(), block.size());
        received.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return received;
}

std::string PseudoTerminal::Settings() const {
    struct termios2 present {};
    ioctl(far_.Number(), TCGETS2, &present);
    std::string text = std::to_string(present.c_ospeed);
    text += (present.c_cflag & CSTOPB) != 0U ? " 2" : " 1";
    text += (present.c_iflag & IXON) != 0U ? " IXON" : "";
    text += (present.c_iflag & IXOFF) != 0U ? " IXOFF" : "";
    text += (present.c_cflag & CRTSCTS) != 0U ? " CRTSCTS" : "";
    return text;
}

TerminalCalls::TerminalCalls() {
    watching = this;
}

TerminalCalls::~TerminalCalls() {
    watching = nullptr;
}

std::string TerminalCalls::Take() {
    return std::exchange(noted, {});
}

}  // namespace tallyhut
