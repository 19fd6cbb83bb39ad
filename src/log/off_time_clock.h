#pragma once

#include <optional>
#include <vector>

#include "contest/off_time.h"
#include "forms/Form1.h"
#include "log/utc_clock.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// The minutes of a log's contacts in order, kept while contacts are added to it, so that a full log is not sorted for
/// each of them.
class SortedMinutes {
public:
    enum class Change { None, Added, ReadAnew };

    /// Brings the minutes to what the log holds, and tells how it has changed since the last call.
    Change Follow(const ContactLog& log, int presentYear);
    const std::vector<ContestMinute>& Minutes() const { return minutes_; }

private:
    std::vector<ContestMinute> minutes_;
    std::int32_t contacts_ = 0;
    std::uint64_t changes_ = 0;
    int presentYear_ = 0;  ///< of dates that bear none
};

/// The clock of the 24 hours on the main form: what is left to operate, the present silence, and when that is off. All
/// of it follows from the contacts and the time of day; Time On and Time Off play no part.
struct OffTimeClock {
    OffTimeClock(Form1& mainForm, const Contest& shown, UtcClock& utcClock, SettingsStore& store)
        : form{mainForm}, contest{shown}, utc{utcClock}, settings{store} {}

    Form1& form;
    const Contest& contest;
    UtcClock& utc;
    SettingsStore& settings;

    std::optional<bool> chosen = {};  ///< what the operator has chosen; before that it is on with a list of sections

    bool IsOn() const { return chosen.value_or(contest.sections.Chosen() != nullptr); }

    /// Takes what is stored.
    void ReadSettings();
    /// Of mnuOffTime. Throws PlatformError when the choice cannot be stored; it counts all the same.
    void mnuOffTime_Click();
    /// Shows what is so by now; to be called each second and behind every change of the contacts. A beep tells once
    /// when 30 and when 5 minutes are left, but not of a log that has been read.
    void Show();

private:
    void ShowLabels(bool on);
    void ShowTimes(const DateTime& now, SortedMinutes::Change change);
    void Warn(std::int64_t left, bool aloud);

    SortedMinutes contacts_;
    std::optional<ContestMinute> shownAt_;  ///< nothing while the clock is not shown
    std::size_t warnings_ = 0;              ///< how many of the limits are reached
};

}  // namespace tallyhut
