#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <functional>

#include "platform/clock.h"
#include "platform/event_pump.h"

namespace tallyhut {

/// The desktop's events, let in where the program asks for them. The event loop is the program's own: no loop of the
/// toolkit below ever runs, so that no handler runs inside one of its callbacks.
///
/// A signal to terminate (TERM, INT, HUP) is told by `onTerminate`. There may be one pump at a time.
class QtPump : public EventPump {
public:
    explicit QtPump(const Clock& clock);
    ~QtPump() override;
    QtPump(const QtPump&) = delete;
    QtPump& operator=(const QtPump&) = delete;
    QtPump(QtPump&&) = delete;
    QtPump& operator=(QtPump&&) = delete;

    void Collect() override;
    void WaitUntil(std::optional<Tick> tick) override;

    /// Something was handed over that the program should see to before it waits.
    void NoteArrival() { arrived_ = true; }

    /// Brings what has changed to the screen.
    std::function<void()> onShow;
    std::function<void()> onTerminate;

private:
    void Show() const;
    /// Done between the desktop's events, not inside one.
    void TellTermination();

    const Clock& clock_;
    QTimer alarm_;
    QSocketNotifier signalArrived_;
    bool arrived_ = false;
    bool terminating_ = false;
};

}  // namespace tallyhut
