#include "contest/rates.h"

namespace tallyhut {
namespace {

constexpr std::int64_t kTwentyMinutes = 1'200;
constexpr std::int64_t kHour = 3'600;

}  // namespace

std::optional<Rates> RatesAt(const DateTime& utc, const ContactLog& log) {
    Rates rates;
    const ContactMoment now = SecondsBetween({}, utc);
    for (std::int32_t row = log.gContactCount(); row >= 1; --row) {
        const std::optional<ContactMoment> at = MomentAsFarAsWritten(log, row, utc.year);
        if (!at) {
            return std::nullopt;
        }
        const std::int64_t age = now - *at;
        rates.lastTwentyMinutes += age < kTwentyMinutes ? 3 : 0;
        if (age >= kHour) {
            break;
        }
        ++rates.lastHour;
    }
    return rates;
}

}  // namespace tallyhut
