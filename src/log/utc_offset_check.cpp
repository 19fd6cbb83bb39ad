#include "log/utc_offset_check.h"

#include <cmath>

#include "platform/platform_error.h"
#include "values/format.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr double kMostHours = 24;  // beyond it lies no clock, and arithmetic that fails every second

}  // namespace

float RecommendedOffset(const DateTime& local, const DateTime& utc) {
    const std::int64_t minutes = SecondsBetween(local, utc) / 60;
    return static_cast<float>(RoundedTo(2, static_cast<double>(minutes) / 60));
}

/// A failure ends this question and not the load.
void UtcOffsetCheck::Store() {
    try {
        preferencesFile.SavePref();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(
            {.title = "Error.", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    }
}

void UtcOffsetCheck::CheckUtcOffset() {
    const DateTime local = desk.clock.Now();
    const DateTime utc = AddMinutes(local, desk.clock.MinutesToUtc());
    const float recommended = RecommendedOffset(local, utc);
    if (preferences.gUtcOffset == recommended) {
        return;
    }
    const std::string gap = std::string{kLineEnd} + std::string{kLineEnd};
    const std::string answer = desk.dialogs.Show(
        InputBox{.title = "Update the Local Time / UTC Offset?",
                 .text = "Would you like to adjust the UTC offset for your local time setting?" + gap +
                         "Current System Time: " + FormatDateTime(utc, "hh:nn") + gap + "Current Local Time: " +
                         FormatDateTime(local, "hh:nn") + gap + "Current Offset: " + PlainText(preferences.gUtcOffset) +
                         gap + "Recommended Offset: " + PlainText(recommended) + gap +
                         "Please click OK to accept the recommended change or Cancel to keep the current setting.",
                 .preset = PlainText(recommended)});
    const std::optional<double> hours = ParseNumber(answer);
    if (hours && std::abs(*hours) <= kMostHours) {
        preferences.gUtcOffset = static_cast<float>(*hours);
        Store();
    }
}

}  // namespace tallyhut
