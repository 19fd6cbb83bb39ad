#include "log/time_stats.h"

#include "log/utc.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::int64_t kTwentyMinutes = 1'200;
constexpr std::int64_t kHour = 3'600;

}  // namespace

void RateLabels::TimeStats() try {
    const DateTime now = UtcNow(clock, preferences);
    std::int32_t inTwenty = 0;
    std::int32_t inSixty = 0;
    for (std::int32_t row = log.gContactCount; row >= 1; --row) {
        const Contact& contact = log.Row(row);
        const std::optional<DateTime> at = ParseDateTime(contact.Date + ' ' + contact.Time, now.year);
        if (!at) {
            return;
        }
        const std::int64_t age = SecondsBetween(*at, now);
        inTwenty += age < kTwentyMinutes ? 1 : 0;
        if (age >= kHour) {
            break;
        }
        ++inSixty;
    }
    form.lblAQSO60.SetCaption(PlainText(inSixty));
    form.lblAQSO20.SetCaption(PlainText(inTwenty * 3));
} catch (const ValueError&) {
    // A clock beyond all years: the rates stay as they are; they are no reason to stop logging.
} catch (const LogFullError&) {
    // A count beyond the tables, while the box about too long a log stands: likewise.
}

}  // namespace tallyhut
