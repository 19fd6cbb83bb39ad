#include "log/operating_time.h"

#include <cmath>

#include "log/attempts.h"
#include "values/format.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kTimeOnCaption = "&Log \"Time On\"";
constexpr std::string_view kTimeOffCaption = "&Log \"Time Off\"";
constexpr Colour kRunning = 0x008000;
constexpr Colour kOnRunning = 0xFFFFFF;
constexpr std::int64_t kLeastTimeOff = 1'800;  // seconds that count as time off the air

std::string TwoDigits(double value) {
    const std::string text = NumberForm(value);
    return value < 10 ? '0' + text.substr(text.size() - 1) : text.substr(text.size() - 2);
}

}  // namespace

std::string DurationText(double seconds) {
    const double hours = std::floor(seconds / 3'600);
    const double minutes = std::floor(seconds / 60 - 60 * hours);
    const double rest = std::floor(seconds - 60 * std::floor(seconds / 60));
    return TwoDigits(hours) + ':' + TwoDigits(minutes) + ':' + TwoDigits(rest);
}

DateTime OperatingTime::FollowedNow() {
    constexpr std::int64_t kSetByHand = 2;  // seconds; the clocks' own rounding is less
    constexpr Tick kMsASecond = 1'000;
    const DateTime now = panel.desk.clock.Now();
    const Tick tick = panel.desk.clock.TickMs();
    if (lastNow) {
        const auto passed = static_cast<std::int64_t>((tick - lastTick) / kMsASecond);
        const std::int64_t jump = SecondsBetween(*lastNow, now) - passed;
        if (std::abs(jump) >= kSetByHand) {
            gLogOnAt = AddSeconds(gLogOnAt, jump);
            gBandOnAt = AddSeconds(gBandOnAt, jump);
        }
    }
    lastNow = now;
    lastTick = tick;
    return now;
}

void OperatingTime::Record(std::uint8_t on, const DateTime& at, bool withTotal) {
    records.Append(on, at, withTotal ? &panel.form.lblttrack.Caption() : nullptr);
}

void OperatingTime::cmdLogOn_Click() {
    if (gTimeOn == 0) {
        TimeOn();
    } else {
        TimeOff();
    }
    panel.fields.First().SetFocus();
}

void OperatingTime::TimeOn() {
    gLogOnAt = FollowedNow();
    gBandOnAt = gLogOnAt;
    gTimeOn = 1;
    ShowState();
    panel.message.Write(" ");
    Record(1, utc.NowByWholeHours(), true);
}

void OperatingTime::TimeOff() {
    gTimeOn = 0;
    ShowState();
    contest.preferences.gOpSeconds = gOpSecondsNow;
    const DateTime at = utc.NowByWholeHours();
    Record(0, at, true);
    panel.message.Write("Logged Off at " + FormatDateTime(at, "ddddd", records.shortDate) + " " +
                        FormatDateTime(at, "hh:mm:ss") + " Log On after " +
                        FormatDateTime(AddSeconds(at, kLeastTimeOff), "hh:mm:ss"));
    preferencesFile.SavePref();
}

void OperatingTime::ShowState() {
    const bool runs = gTimeOn == 1;
    panel.form.cmdLogOn.SetCaption(runs ? kTimeOffCaption : kTimeOnCaption);
    panel.form.lblClockState.SetCaption(runs ? "Running" : "Stopped");
    panel.form.lblClockState.SetBackColor(runs ? kRunning : kButtonFace);
    panel.form.lblClockState.SetForeColor(runs ? kOnRunning : kWindowText);
}

void OperatingTime::Timer2_Elapsed() try {
    const DateTime now = FollowedNow();
    const std::string time = FormatDateTime(now, "h:nn:ss AMPM");
    panel.form.lblCurTime.SetCaption(time.substr(0, time.size() - 3));
    panel.form.Label16.SetCaption(FormatDateTime(now, "AMPM"));
    panel.form.lblutctime.SetCaption(FormatDateTime(utc.Now(), "hh:nn:ss"));
    if (gTimeOn == 1) {
        gOpSecondsNow = std::abs(contest.preferences.gOpSeconds + static_cast<float>(SecondsBetween(gLogOnAt, now)));
        panel.form.lblttrack.SetCaption(DurationText(static_cast<double>(gOpSecondsNow)));
        panel.form.lbltimeon.SetCaption(DurationText(std::abs(static_cast<double>(SecondsBetween(gBandOnAt, now)))));
    }
} catch (const ValueError&) {
    // A clock beyond all years: the next tick may be better.
}

void OperatingTime::BeginBand() {
    gBandOnAt = FollowedNow();
}

void OperatingTime::CloseAtExit(bool withTotal) {
    if (gTimeOn == 0) {
        return;
    }
    Attempts attempts;
    contest.preferences.gOpSeconds = gOpSecondsNow;
    attempts.Try([this] { preferencesFile.SavePref(); });
    gTimeOn = 0;
    attempts.Try([this, withTotal] { Record(0, utc.NowByWholeHours(), withTotal); });
    attempts.ThrowIfAnyFailed();
}

OperatingTime::Seconds OperatingTime::Reset() {
    const Seconds before{.stored = contest.preferences.gOpSeconds, .now = gOpSecondsNow};
    PutBack({});
    return before;
}

void OperatingTime::PutBack(const Seconds& seconds) {
    contest.preferences.gOpSeconds = seconds.stored;
    gOpSecondsNow = seconds.now;
}

}  // namespace tallyhut
