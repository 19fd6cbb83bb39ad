#include "values/decimal.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <system_error>

#include "values/value_error.h"

namespace tallyhut {

namespace {

void DropZerosAtEnd(Decimal& number) {
    number.digits.resize(number.digits.find_last_not_of('0') + 1);  // nothing found: npos + 1 is 0
    if (number.digits.empty()) {
        number = {};
    }
}

/// Adds one to the last digit. Nines become zeros, which the digits do not hold at their end.
void CountUp(Decimal& number) {
    number.digits.resize(number.digits.find_last_not_of('9') + 1);
    if (number.digits.empty()) {
        number.digits.assign(1, '1');
        ++number.pointAt;
    } else {
        ++number.digits.back();
    }
}

}  // namespace

Decimal DecimalOf(double value, int significantDigits) {
    if (!std::isfinite(value)) {
        throw ValueError("the value is not a finite number");
    }
    std::array<char, 32> buffer{};  // d.ddddddddddddddE+ddd of 15 digits takes 21
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                            std::chars_format::scientific, significantDigits - 1);
    assert(error == std::errc{});
    const std::string_view text{buffer.data(), static_cast<std::size_t>(end - buffer.data())};
    const std::size_t mark = text.find('e');
    int exponent = 0;
    std::from_chars(text.data() + mark + (text[mark + 1] == '+' ? 2 : 1), end, exponent);

    Decimal number{.digits = std::string{text.substr(0, mark)}, .pointAt = exponent + 1, .negative = value < 0};
    std::erase(number.digits, '.');
    DropZerosAtEnd(number);
    return number;
}

Decimal Rounded(Decimal number, int decimals, Halves halves) {
    const int kept = number.pointAt + decimals;
    if (kept < 0) {
        return {};
    }
    const auto cut = static_cast<std::size_t>(kept);
    if (cut >= number.digits.size()) {
        return number;
    }
    const bool isHalf = std::string_view{number.digits}.substr(cut) == "5";
    const bool isOdd = cut > 0 && (number.digits[cut - 1] - '0') % 2 == 1;
    const bool goesUp = isHalf ? halves == Halves::kAwayFromZero || isOdd : number.digits[cut] >= '5';
    number.digits.resize(cut);
    if (goesUp) {
        CountUp(number);
    } else {
        DropZerosAtEnd(number);
    }
    return number;
}

std::string WholeDigits(const Decimal& number) {
    if (number.pointAt <= 0) {
        return "";
    }
    std::string whole = number.digits.substr(0, static_cast<std::size_t>(number.pointAt));
    whole.resize(static_cast<std::size_t>(number.pointAt), '0');
    return whole;
}

std::string FractionDigits(const Decimal& number) {
    if (number.pointAt <= 0) {
        return std::string(static_cast<std::size_t>(-number.pointAt), '0') + number.digits;
    }
    const auto point = static_cast<std::size_t>(number.pointAt);
    return point < number.digits.size() ? number.digits.substr(point) : "";
}

}  // namespace tallyhut
