#include "forms/qt/qt_pump.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <algorithm>
#include <limits>
#include <utility>

namespace tallyhut {
namespace {

/// The most that Collect takes, however much arrives meanwhile.
constexpr int kCollectMs = 10;

void TakeIn() {
    QCoreApplication::processEvents(QEventLoop::AllEvents, kCollectMs);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class QtWatch : public DescriptorWatch {
public:
    QtWatch(int descriptor, std::function<void()> arrived) : readable_{descriptor, QSocketNotifier::Read} {
        QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this, told = std::move(arrived)] {
            readable_.setEnabled(false);
            told();
        });
    }
    void Rearm() override { readable_.setEnabled(true); }

private:
    QSocketNotifier readable_;
};

}  // namespace

QtPump::QtPump(const Clock& clock) : clock_{clock} {
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QApplication::setQuitOnLastWindowClosed(false);
    QAccessible::setRootObject(qApp);  // else done by the event loop that never runs
}

std::unique_ptr<DescriptorWatch> QtPump::Watch(int descriptor, std::function<void()> arrived) {
    return std::make_unique<QtWatch>(descriptor, [this, told = std::move(arrived)] {
        cameByWire_ = true;
        told();
    });
}

void QtPump::Collect() {
    Show();
    TakeIn();
}

void QtPump::CollectBetweenSteps() {
    if (clock_.TickMs() - std::max(wokeAt_, shownAt_) >= kFrame) {
        Show();
    }
    TakeIn();
}

void QtPump::WaitUntil(std::optional<Tick> tick) {
    Show();
    Wait(tick);
    wokeAt_ = clock_.TickMs();
}

void QtPump::Wait(std::optional<Tick> tick) {
    if (std::exchange(arrived_, false)) {
        return;
    }
    const Tick now = clock_.TickMs();
    if (tick && *tick <= now) {
        return;
    }
    if (cameByWire_) {  // it has yet to be shown
        const Tick nextFrame = shownAt_ + kFrame;
        tick = std::min(tick.value_or(nextFrame), nextFrame);
    }
    if (tick) {
        constexpr Tick kLongest = std::numeric_limits<int>::max();
        alarm_.start(static_cast<int>(std::min(*tick - now, kLongest)));
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    alarm_.stop();
    arrived_ = false;  // the caller looks at everything now
}

void QtPump::Show() {
    const Tick now = clock_.TickMs();
    if (cameByWire_ && !isUrgent_ && now - shownAt_ < kFrame) {
        return;
    }
    cameByWire_ = isUrgent_ = false;
    shownAt_ = now;
    if (onShow) {
        onShow();
    }
}

}  // namespace tallyhut
