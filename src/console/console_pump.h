#pragma once

#include <functional>
#include <map>

#include "console/json_output.h"
#include "console/line_source.h"
#include "platform/event_pump.h"
#include "platform/sim/clock.h"

namespace tallyhut {

/// The pump of a program without a screen: what happens are the driver's lines. With a virtual clock no time passes
/// while a line is awaited; with the machine's clock timers run meanwhile.
class ConsolePump : public EventPump {
public:
    ConsolePump(LineSource& lines, JsonOutput& out, sim::Clock* virtualClock, const Clock& clock)
        : lines_{lines}, out_{out}, virtualClock_{virtualClock}, clock_{clock} {}

    /// What the host does for the pump.
    std::function<Json()> describeTurn;                                ///< the `ready` of this moment
    std::function<void(const std::string& line, bool putAt)> runLine;  ///< one command
    std::function<void()> endOfInput;                                  ///< one step towards the end: close what is open
    std::function<std::optional<Tick>()> heldUntil;                    ///< a key waits for this tick

    void Collect() override;
    void WaitUntil(std::optional<Tick> tick) override;

    /// Puts a command at so many milliseconds from now.
    void PutAt(Tick milliseconds, const std::string& line);
    /// When the next of those is to be delivered.
    std::optional<Tick> NextPut() const;
    /// The command that is running has moved the clock and has run what came due; what is due beyond waits for the
    /// next.
    void NoteTimeMoved() { timeMoved_ = true; }

private:
    /// One turn of the driver's; false when the program is to run its events next.
    bool TakeTurn(std::optional<Tick> tick);
    int MillisecondsTo(std::optional<Tick> tick) const;

    LineSource& lines_;
    JsonOutput& out_;
    sim::Clock* virtualClock_;
    const Clock& clock_;
    std::multimap<Tick, std::string> put_;
    bool timeMoved_ = false;
};

}  // namespace tallyhut
