#pragma once

#include <cstdint>

#include "log/panel.h"
#include "log/preferences_file.h"
#include "log/time_records.h"

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

    std::uint8_t gTimeOn = 0;  ///< 1 while the clock runs
    float gOpSecondsNow = 0;   ///< as gOpSeconds, and what has passed since the last Time On
    DateTime gLogOnAt = {};    ///< of the last Time On
    DateTime gBandOnAt = {};   ///< of the last Time On or change of band

    /// Starts or stops the clock. Throws PlatformError when the file cannot be written.
    void cmdLogOn_Click();
    /// Each second. Stays silent whatever fails.
    void Timer2_Elapsed();
    /// Stops the clock if it runs, as the program ends: the seconds are kept and the stop is recorded.
    void CloseAtExit(bool withTotal);
    /// For a new log.
    void Reset();

private:
    void TimeOn();
    void TimeOff();
    void Record(std::uint8_t on, const DateTime& at, bool withTotal);
    DateTime RecordedNow() const;
};

/// Hours, minutes and seconds as "03:12:44"; the hours show their last two digits.
std::string DurationText(double seconds);

}  // namespace tallyhut
