#include "log/operating_time.h"

#include <cmath>

#include "values/format.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kTimeOnCaption = "&Log \"Time On\"";
constexpr std::string_view kTimeOffCaption = "&Log \"Time Off\"";
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

/// The record takes the offset in hours, where everything else takes it in minutes: a fraction is rounded here.
DateTime OperatingTime::RecordedNow() const {
    return AddHours(panel.desk.clock.Now(), static_cast<double>(contest.preferences.gUtcOffset));
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
    gLogOnAt = panel.desk.clock.Now();
    gBandOnAt = gLogOnAt;
    gTimeOn = 1;
    panel.form.cmdLogOn.SetCaption(kTimeOffCaption);
    panel.message.Write(" ");
    Record(1, RecordedNow(), true);
}

void OperatingTime::TimeOff() {
    gTimeOn = 0;
    panel.form.cmdLogOn.SetCaption(kTimeOnCaption);
    contest.preferences.gOpSeconds = gOpSecondsNow;
    const DateTime at = RecordedNow();
    Record(0, at, true);
    panel.message.Write("Logged Off at " + FormatDateTime(at, "ddddd", records.shortDate) + " " +
                        FormatDateTime(at, "hh:mm:ss") + " Log On after " +
                        FormatDateTime(AddSeconds(at, kLeastTimeOff), "hh:mm:ss"));
    preferencesFile.SavePref();
}

void OperatingTime::Timer2_Elapsed() try {
    const DateTime now = panel.desk.clock.Now();
    const std::string time = FormatDateTime(now, "h:nn:ss AMPM");
    panel.form.lblCurTime.SetCaption(time.substr(0, time.size() - 3));
    panel.form.Label16.SetCaption(FormatDateTime(now, "AMPM"));
    panel.form.lblutctime.SetCaption(FormatDateTime(UtcOf(now, contest.preferences), "hh:nn:ss"));
    if (gTimeOn == 1) {
        gOpSecondsNow = std::abs(contest.preferences.gOpSeconds + static_cast<float>(SecondsBetween(gLogOnAt, now)));
        panel.form.lblttrack.SetCaption(DurationText(static_cast<double>(gOpSecondsNow)));
        panel.form.lbltimeon.SetCaption(DurationText(std::abs(static_cast<double>(SecondsBetween(gBandOnAt, now)))));
    }
} catch (const ValueError&) {
    // A clock beyond all years: the next tick may be better.
}

void OperatingTime::CloseAtExit(bool withTotal) {
    if (gTimeOn == 0) {
        return;
    }
    contest.preferences.gOpSeconds = gOpSecondsNow;
    preferencesFile.SavePref();
    gTimeOn = 0;
    Record(0, RecordedNow(), withTotal);
}

void OperatingTime::Reset() {
    gOpSecondsNow = 0;
    contest.preferences.gOpSeconds = 0;
}

}  // namespace tallyhut
