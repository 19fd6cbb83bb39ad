#include "log/rate_labels.h"

#include "contest/rates.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {

void RateLabels::TimeStats() try {
    if (const std::optional<Rates> rates = RatesAt(utc.Now(), contest.log)) {
        form.lblAQSO60.SetCaption(PlainText(rates->lastHour));
        form.lblAQSO20.SetCaption(PlainText(rates->lastTwentyMinutes));
    }
} catch (const ValueError&) {
    // A clock beyond all years: the rates stay as they are; they are no reason to stop logging.
} catch (const LogFullError&) {
    // A count beyond the tables, while the box about too long a log stands: likewise.
}

}  // namespace tallyhut
