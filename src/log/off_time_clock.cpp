#include "log/off_time_clock.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/desk.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kKey = "OffTimeClock";
constexpr const char* kOn = "1";
constexpr const char* kOff = "0";

constexpr std::array<std::int64_t, 2> kWarnings{30, 5};  ///< minutes left
constexpr Colour kRed = 0x0000FF;
constexpr std::int64_t kLongest = 100 * kMinutesOfAnHour - 1;  ///< that two digits of hours tell

std::string SilenceCaption(const OffTime& at) {
    if (at.silence == 0) {
        return "Silence";
    }
    return at.IsOff() ? "Off time" : "Silence, off at " + ClockText(*at.offFrom % kMinutesOfADay);
}

}  // namespace

SortedMinutes::Change SortedMinutes::Follow(const ContactLog& log, int presentYear) {
    const std::int32_t before = std::exchange(contacts_, log.gContactCount());
    const std::uint64_t changes = log.Changes() - std::exchange(changes_, log.Changes());
    const std::int32_t added = contacts_ - before;
    const bool sameYear = std::exchange(presentYear_, presentYear) == presentYear;
    if (changes == 0 && (sameYear || contacts_ == 0)) {
        return Change::None;
    }
    // As many changes as there are more contacts: these have been added, and none has changed.
    if (before == 0 || !sameYear || !std::cmp_equal(changes, added)) {
        minutes_ = MinutesOf(log, presentYear);
        return Change::ReadAnew;
    }
    for (std::int32_t n = before + 1; n <= contacts_; ++n) {
        if (const std::optional<ContactMoment> moment = log.MomentOf(n, presentYear)) {
            const ContestMinute minute = MinuteOf(*moment);
            minutes_.insert(std::ranges::upper_bound(minutes_, minute), minute);
        }
    }
    return Change::Added;
}

void OffTimeClock::ReadSettings() {
    const std::string stored = settings.Get(kSection, kKey);
    chosen = stored == kOn || stored == kOff ? std::optional{stored == kOn} : std::nullopt;
}

void OffTimeClock::mnuOffTime_Click() {
    chosen = !IsOn();
    Show();
    settings.Set(kSection, kKey, *chosen ? kOn : kOff);
}

void OffTimeClock::Show() try {
    const bool on = IsOn();
    ShowLabels(on);
    if (!on) {
        shownAt_.reset();
        return;
    }
    const DateTime now = utc.Now();
    const SortedMinutes::Change change = contacts_.Follow(contest.log, now.year);
    if (change != SortedMinutes::Change::None || shownAt_ != MinuteOf(now)) {
        ShowTimes(now, change);
    }
} catch (const ValueError&) {
    // A clock beyond all years: the next look may be better.
} catch (const LogFullError&) {
    // A count beyond the tables, while the box about too long a log stands: likewise.
}

void OffTimeClock::ShowLabels(bool on) {
    form.mnuOffTime.SetChecked(on);
    for (Label* label : {&form.lblLeftCaption, &form.lblLeft, &form.lblOffCaption, &form.lblOff}) {
        label->SetVisible(on);
    }
}

void OffTimeClock::ShowTimes(const DateTime& now, SortedMinutes::Change change) {
    const bool wasShown = std::exchange(shownAt_, MinuteOf(now)).has_value();
    const OffTime at = OffTimeAt(*shownAt_, contacts_.Minutes());
    form.lblLeft.SetCaption(ClockText(at.left));
    form.lblOff.SetCaption(at.silence == 0 ? "" : ClockText(std::min(at.silence, kLongest)));
    form.lblOffCaption.SetCaption(SilenceCaption(at));
    Warn(at.left, wasShown && change != SortedMinutes::Change::ReadAnew);
}

void OffTimeClock::Warn(std::int64_t left, bool aloud) {
    const auto reached = static_cast<std::size_t>(
        std::ranges::count_if(kWarnings, [left](std::int64_t limit) { return left <= limit; }));
    form.lblLeft.SetForeColor(reached > 0 ? kRed : kWindowText);
    const bool isNew = reached > warnings_;
    const bool isOver = left == 0;  // and nothing is left to be warned of
    warnings_ = aloud || isOver ? reached : std::min(warnings_, reached);
    if (isNew && aloud) {
        form.desk.dialogs.Beep();
        form.desk.Announce("Left to operate: " + PlainText(left) + (left == 1 ? " minute" : " minutes"));
    }
}

}  // namespace tallyhut
