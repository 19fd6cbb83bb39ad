#pragma once

#include <QTimer>
#include <functional>

#include "platform/clock.h"
#include "platform/event_pump.h"

namespace tallyhut {

/// The desktop's events, let in where the program asks for them. The event loop is the program's own: no loop of the
/// toolkit below ever runs, so that no handler runs inside one of its callbacks.
class QtPump : public EventPump {
public:
    explicit QtPump(const Clock& clock);

    void Collect() override;
    void WaitUntil(std::optional<Tick> tick) override;
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override;

    /// Something was handed over that the program should see to before it waits.
    void NoteArrival() { arrived_ = true; }

    /// Brings what has changed to the screen.
    std::function<void()> onShow;

private:
    void Show() const;

    const Clock& clock_;
    QTimer alarm_;
    bool arrived_ = false;
};

}  // namespace tallyhut
