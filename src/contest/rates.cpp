#include "contest/rates.h"

namespace tallyhut {
namespace {

constexpr std::int64_t kTwentyMinutes = 1'200;
constexpr std::int64_t kHour = 3'600;

}  // namespace

std::optional<Rates> RatesAt(const DateTime& utc, const ContactLog& log) {
    Rates rates;
    for (std::int32_t row = log.gContactCount; row >= 1; --row) {
        const Contact& contact = log.Row(row);
        const std::optional<DateTime> at = ParseDateTime(contact.Date + ' ' + contact.Time, utc.year);
        if (!at) {
            return std::nullopt;
        }
        const std::int64_t age = SecondsBetween(*at, utc);
        rates.lastTwentyMinutes += age < kTwentyMinutes ? 3 : 0;
        if (age >= kHour) {
            break;
        }
        ++rates.lastHour;
    }
    return rates;
}

}  // namespace tallyhut
