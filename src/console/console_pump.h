#pragma once

#include <functional>
#include <map>

#include "console/json_output.h"
#include "console/line_source.h"
#include "platform/event_pump.h"
#include "platform/sim/clock.h"

namespace tallyhut {

struct Desk;

/// The pump of a program without a screen: what happens are the driver's lines, and what devices have to be read. With
/// a virtual clock no time passes while a line is awaited, and what arrives meanwhile waits too; with the machine's
/// clock timers and devices go on.
class ConsolePump : public EventPump {
public:
    /// @param virtualClock  null with the machine's clock
    ConsolePump(PolledDescriptors& descriptors, LineSource& lines, JsonOutput& out, sim::Clock* virtualClock,
                const Clock& machineClock)
        : descriptors_{descriptors},
          lines_{lines},
          out_{out},
          virtualClock_{virtualClock},
          machineClock_{machineClock} {}

    // What the host does for the pump.
    std::function<Json()> describeTurn;                                ///< the `ready` of this moment
    std::function<void(const std::string& line, bool putAt)> runLine;  ///< one command
    std::function<void()> endOfInput;                                  ///< one step towards the end: close what is open
    std::function<std::optional<Tick>()> heldUntil;                    ///< the program itself waits for this tick

    void Collect() override;
    void WaitUntil(std::optional<Tick> tick) override;
    void Yield() override;
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override;

    /// Runs the desk's events for so many milliseconds of the machine's clock, or until the input has ended.
    void Settle(Tick milliseconds, Desk& desk);

    /// Puts a command at so many milliseconds from now.
    void PutAt(Tick milliseconds, const std::string& line);
    /// When the next of those is to be delivered.
    std::optional<Tick> NextPut() const;
    /// The command that is running has moved the clock and has run what came due; what is due beyond waits for the
    /// next.
    void NoteTimeMoved() { timeMoved_ = true; }

private:
    Tick Now() const { return virtualClock_ != nullptr ? virtualClock_->TickMs() : machineClock_.TickMs(); }
    /// One turn of the driver's; false when the program is to run its events next.
    bool TakeTurn(std::optional<Tick> tick);
    /// Nothing when the tick comes first or, with the machine's clock, a device has something; nor when the input ends.
    std::optional<std::string> NextLine(std::optional<Tick> tick);
    int MillisecondsTo(std::optional<Tick> tick) const;
    /// With a virtual clock, whether events run once more before the driver has its turn.
    bool RunsOnBeforeTurn(bool waits);

    PolledDescriptors& descriptors_;
    LineSource& lines_;
    JsonOutput& out_;
    sim::Clock* virtualClock_;
    const Clock& machineClock_;
    std::multimap<Tick, std::string> put_;
    bool timeMoved_ = false;
    bool arrived_ = false;     ///< a device has something, and no event has run since
    int roundsSinceLine_ = 0;  ///< that ran because something waited
};

}  // namespace tallyhut
