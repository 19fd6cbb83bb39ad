#pragma once

#include <cstdint>
#include <optional>

#include "log/panel.h"
#include "log/preferences_file.h"
#include "log/time_records.h"
#include "log/utc_clock.h"

namespace tallyhut {

/// The clock of the operating time and the clocks on the wall. Each start and stop is a line of nsonoff.txt.
///
/// The total is always worked out from the moment of the last click, never counted up by ticks: a late tick loses
/// nothing.
struct OperatingTime {
    Panel& panel;
    Contest& contest;
    PreferencesFile& preferencesFile;
    TimeRecords& records;
    UtcClock& utc;

    std::uint8_t gTimeOn = 0;  ///< 1 while the clock runs
    float gOpSecondsNow = 0;   ///< as gOpSeconds, and what has passed since the last Time On
    DateTime gLogOnAt = {};    ///< of the last Time On
    DateTime gBandOnAt = {};   ///< of the last Time On or change of band

    std::optional<DateTime> lastNow = {};  ///< when the machine's clock was last looked at
    Tick lastTick = 0;                     ///< the tick of that moment

    /// Starts or stops the clock. Throws PlatformError when the file cannot be written.
    void cmdLogOn_Click();
    /// Each second. Stays silent whatever fails.
    void Timer2_Elapsed();
    /// The band that begins now.
    void BeginBand();
    /// Stops the clock if it runs, as the program ends: the seconds are kept and the stop is recorded. Does of it what
    /// can be done; throws PlatformError for what cannot.
    void CloseAtExit(bool withTotal);

    struct Seconds {
        float stored = 0;
        float now = 0;
    };
    /// For a new log. Returns what was, to be put back where there is none after all.
    Seconds Reset();
    void PutBack(const Seconds& seconds);

private:
    void TimeOn();
    void TimeOff();
    void ShowState();
    void Record(std::uint8_t on, const DateTime& at, bool withTotal);
    /// The local time. Where the machine's clock was set since it was last looked at, the moments that time is counted
    /// from move with it: what counts is what has passed.
    DateTime FollowedNow();
};

/// Hours, minutes and seconds as "03:12:44"; the hours show their last two digits.
std::string DurationText(double seconds);

}  // namespace tallyhut
