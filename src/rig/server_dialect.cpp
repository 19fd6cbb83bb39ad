#include "rig/server_dialect.h"

#include "rig/reply_numbers.h"

namespace tallyhut {

ServerAnswer FrequencyTold(std::string_view hertz) {
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::size_t kMostDigits = 12;
    constexpr std::size_t kMostDecimals = 10;
    const std::string_view whole = hertz.substr(0, hertz.find_first_not_of(kDigits));
    const std::string_view decimals = hertz.substr(whole.size());  // with their point
    const bool isNumber = !whole.empty() && whole.size() <= kMostDigits && decimals.size() <= kMostDecimals &&
                          (decimals.empty() || decimals.front() == '.') &&
                          decimals.find_first_not_of(kDigits, 1) == std::string_view::npos;
    const std::optional<float> frequency = isNumber ? MegahertzOfHertz(hertz) : std::nullopt;
    if (!frequency) {
        return {.kind = ServerAnswer::Kind::Broken};
    }
    if (*frequency <= 0) {
        return {.kind = ServerAnswer::Kind::Refused};
    }
    return {.kind = ServerAnswer::Kind::Good, .reading = {.frequency = frequency, .mode = {}, .vfoDigit = {}}};
}

}  // namespace tallyhut
