#include "forms/qt/qt_pump.h"

#include <fcntl.h>
#include <unistd.h>

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <limits>
#include <system_error>
#include <utility>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

/// The most that Collect takes, however much arrives meanwhile.
constexpr int kCollectMs = 10;

constexpr std::array kTerminations{SIGTERM, SIGINT, SIGHUP};

/// What a signal handler may touch: the two ends of a pipe.
std::array<int, 2> signalPipe{-1, -1};

void OnSignal(int /*number*/) {
    const int before = errno;
    const char token = 1;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &token, 1);  // a full pipe says enough
    errno = before;
}

int OpenSignalPipe() {
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw PlatformError{std::generic_category().message(errno)};
    }
    return signalPipe[0];
}

void EmptySignalPipe() {
    std::array<char, 16> tokens{};
    while (read(signalPipe[0], tokens.data(), tokens.size()) > 0) {
    }
}

}  // namespace

QtPump::QtPump(const Clock& clock) : clock_{clock}, signalArrived_{OpenSignalPipe(), QSocketNotifier::Read} {
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&signalArrived_, &QSocketNotifier::activated, &signalArrived_, [this] {
        EmptySignalPipe();
        terminating_ = true;
    });
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : kTerminations) {
        sigaction(number, &action, nullptr);
    }
    QApplication::setQuitOnLastWindowClosed(false);
    QAccessible::setRootObject(qApp);  // else done by the event loop that never runs
}

QtPump::~QtPump() {
    for (const int number : kTerminations) {
        std::signal(number, SIG_DFL);
    }
    signalArrived_.setEnabled(false);
    for (int& end : signalPipe) {
        close(std::exchange(end, -1));
    }
}

void QtPump::Collect() {
    Show();
    QCoreApplication::processEvents(QEventLoop::AllEvents, kCollectMs);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    TellTermination();
}

void QtPump::WaitUntil(std::optional<Tick> tick) {
    Show();
    if (std::exchange(arrived_, false)) {
        return;
    }
    const Tick now = clock_.TickMs();
    if (tick && *tick <= now) {
        return;
    }
    if (tick) {
        constexpr Tick kLongest = std::numeric_limits<int>::max();
        alarm_.start(static_cast<int>(std::min(*tick - now, kLongest)));
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    alarm_.stop();
    TellTermination();
    arrived_ = false;  // the caller looks at everything now
}

void QtPump::Show() const {
    if (onShow) {
        onShow();
    }
}

void QtPump::TellTermination() {
    if (std::exchange(terminating_, false) && onTerminate) {
        onTerminate();
        NoteArrival();
    }
}

}  // namespace tallyhut
