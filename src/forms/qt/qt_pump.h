#pragma once

#include <QTimer>
#include <functional>

#include "platform/clock.h"
#include "platform/event_pump.h"

namespace tallyhut {

/// The desktop's events, let in where the program asks for them. The event loop is the program's own: no loop of the
/// toolkit below ever runs, so that no handler runs inside one of its callbacks.
///
/// What the program changes by itself or for the operator is shown at once. What comes over a wire may come thousands
/// of times a second, and is shown once a frame.
class QtPump : public EventPump {
public:
    explicit QtPump(const Clock& clock);

    void Collect() override;
    void CollectBetweenSteps() override;
    void WaitUntil(std::optional<Tick> tick) override;
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override;

    static constexpr Tick kFrame = 16;

    /// Something was handed over that the program should see to before it waits.
    void NoteArrival() { arrived_ = isUrgent_ = true; }

    /// Brings what has changed to the screen.
    std::function<void()> onShow;

private:
    void Show();
    void Wait(std::optional<Tick> tick);

    const Clock& clock_;
    QTimer alarm_;
    bool arrived_ = false;
    bool isUrgent_ = false;    ///< the operator waits for what is to be shown
    bool cameByWire_ = false;  ///< what is to be shown, or some of it
    Tick shownAt_ = 0;
    Tick wokeAt_ = 0;  ///< when the last wait ended
};

}  // namespace tallyhut
