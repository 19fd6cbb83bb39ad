#pragma once

#include <string>

namespace tallyhut {

/// A number as its decimal digits: 0.d1d2d3... times ten to the power of pointAt, so 14.25 is "1425" with pointAt 2.
///
/// The ground under the texts and pictures of numbers: it is rounded as the operator reads it, digit by digit, not as
/// the machine stores it.
struct Decimal {
    std::string digits;  ///< no zeros at either end; empty for zero
    int pointAt = 0;
    bool negative = false;  ///< never for zero
};

enum class Halves { kToEven, kAwayFromZero };

/// A float has 7 digits that mean something, a double 15; the digits behind them only show how it is stored.
inline constexpr int kFloatDigits = 7;
inline constexpr int kDoubleDigits = 15;

/// The value to so many significant digits. Throws ValueError when it is infinite or no number.
Decimal DecimalOf(double value, int significantDigits);

/// The number rounded to so many digits behind the point.
Decimal Rounded(Decimal number, int decimals, Halves halves);

/// The digits before the point, without leading zeros: empty below one.
std::string WholeDigits(const Decimal& number);

/// The digits behind the point, without zeros at the end: empty for a whole number.
std::string FractionDigits(const Decimal& number);

}  // namespace tallyhut
