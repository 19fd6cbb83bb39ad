#include "values/number.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "values/decimal.h"
#include "values/hex.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {

namespace {

constexpr std::string_view kDecimalDigits = "0123456789";

/// In plain decimal text 15 digits before the point show a double whole, 6 zeros behind it are still easy to count.
constexpr int kFirstPlainPoint = -6;
constexpr int kLastPlainPoint = 15;

std::string DecimalText(const Decimal& number) {
    std::string text = WholeDigits(number);
    if (text.empty()) {
        text = '0';
    }
    const std::string fraction = FractionDigits(number);
    return fraction.empty() ? text : text + '.' + fraction;
}

std::string ExponentText(const Decimal& number) {
    std::string text = number.digits;
    if (text.size() > 1) {
        text.insert(1, 1, '.');
    }
    const int exponent = number.pointAt - 1;
    text += exponent < 0 ? "E-" : "E+";
    text += std::abs(exponent) < 10 ? "0" : "";
    return text + std::to_string(std::abs(exponent));
}

std::string Text(const Decimal& number) {
    const bool plain = number.pointAt >= kFirstPlainPoint && number.pointAt <= kLastPlainPoint;
    std::string text = number.negative ? "-" : "";
    text += plain ? DecimalText(number) : ExponentText(number);
    return text;
}

/// Takes the digits at the front off the text.
std::string_view TakeDigits(std::string_view& text) {
    const std::string_view digits = text.substr(0, text.find_first_not_of(kDecimalDigits));
    text.remove_prefix(digits.size());
    return digits;
}

/// Takes one of the characters off the front of the text, if it stands there; '\0' if not.
char TakeOneOf(std::string_view characters, std::string_view& text) {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos) {
        return '\0';
    }
    const char taken = text.front();
    text.remove_prefix(1);
    return taken;
}

/// The power of ten of the first digit that is no zero, as far as it is needed to tell a huge number from a tiny one.
int Magnitude(std::string_view whole, std::string_view fraction, int exponent) {
    const std::size_t leading = whole.find_first_not_of('0');
    if (leading != std::string_view::npos) {
        return exponent + static_cast<int>(whole.size() - leading) - 1;
    }
    return exponent - static_cast<int>(fraction.find_first_not_of('0')) - 1;
}

/// The value of a number without a sign.
std::optional<double> ParseUnsigned(std::string_view text) {
    std::string_view rest = text;
    const std::string_view whole = TakeDigits(rest);
    const std::string_view fraction = TakeOneOf(".", rest) != '\0' ? TakeDigits(rest) : "";
    if (whole.empty() && fraction.empty()) {
        return std::nullopt;
    }
    int exponent = 0;
    if (TakeOneOf("eE", rest) != '\0') {
        const bool negative = TakeOneOf("+-", rest) == '-';
        const std::string_view digits = TakeDigits(rest);
        if (digits.empty()) {
            return std::nullopt;
        }
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc{}) {
            exponent = std::numeric_limits<int>::max() / 2;  // far beyond any double, and leaves room for the digits
        }
        exponent = negative ? -exponent : exponent;
    }
    if (!rest.empty()) {
        return std::nullopt;
    }
    double value = 0;
    const auto error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
    if (error == std::errc::result_out_of_range) {
        return Magnitude(whole, fraction, exponent) < 0 ? std::optional{0.0} : std::nullopt;
    }
    return value;
}

template <typename T>
T ToWhole(double value) {
    const double rounded = RoundHalfEven(value);
    const auto least = std::numeric_limits<T>::min();
    const auto most = std::numeric_limits<T>::max();
    if (!(rounded >= least && rounded <= most)) {  // the negation takes in what is no number
        throw ValueError((std::isfinite(value) ? PlainText(value) : "the value") + " is no whole number from " +
                         PlainText(least) + " to " + PlainText(most));
    }
    return static_cast<T>(rounded);
}

}  // namespace

std::string PlainText(float value) {
    return Text(DecimalOf(value, kFloatDigits));
}

std::string PlainText(double value) {
    return Text(DecimalOf(value, kDoubleDigits));
}

std::optional<double> ParseNumber(std::string_view text) {
    const std::string trimmed = Trim(text);
    std::string_view rest = trimmed;
    if (rest.starts_with("&H") || rest.starts_with("&h")) {
        const auto number = ParseHexNumber(rest.substr(2));
        return number ? std::optional<double>{*number} : std::nullopt;
    }
    const bool negative = TakeOneOf("+-", rest) == '-';
    const auto value = ParseUnsigned(rest);
    return value && negative ? -*value : value;
}

bool IsNumeric(std::string_view text) {
    return ParseNumber(text).has_value();
}

double TrimmedNumber(std::string_view text) {
    const auto value = ParseNumber(text);
    if (!value) {
        throw ValueError('"' + std::string{text} + "\" is not numeric");
    }
    return *value;
}

double RoundHalfEven(double value) {
    return std::nearbyint(value);
}

std::uint8_t ToByte(double value) {
    return ToWhole<std::uint8_t>(value);
}

std::int16_t ToInt16(double value) {
    return ToWhole<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
    return ToWhole<std::int32_t>(value);
}

double RoundedTo(int decimals, double value) {
    const Decimal number = DecimalOf(value, kDoubleDigits);
    const Decimal rounded = Rounded(number, decimals, Halves::kToEven);
    if (rounded.digits == number.digits && rounded.pointAt == number.pointAt) {
        return value;  // nothing to round: the digits behind the fifteenth stay
    }
    return TrimmedNumber(Text(rounded));
}

}  // namespace tallyhut
