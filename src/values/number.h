#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

// Numbers and their texts. The decimal point is a point on every machine.

/// The integer types that hold numbers: no truth values, no characters.
template <typename T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char>;

/// Plain decimal text to 7 significant digits, without zeros at the end of a fraction: "14.2", "-0.5", "0". In exponent
/// form, "1E+20", from 1E+15 on and below 1E-7. Throws ValueError when the value is infinite or no number.
std::string PlainText(float value);

/// The same to 15 significant digits.
std::string PlainText(double value);

template <WholeNumber T>
std::string PlainText(T value) {
    return std::to_string(value);
}

/// The plain text with a blank in front when the value is not negative, as labels show numbers: " 137", "-5".
template <typename T>
std::string NumberForm(T value) {
    std::string text = value < 0 ? "" : " ";
    text += PlainText(value);
    return text;
}

/// The value of a text that is numeric; nothing when it is not.
///
/// Numeric is, with blanks around it: a sign or none, digits with at most one point among or beside them, an exponent
/// ("E", a sign or none, digits) or none; or "&H" and a hexadecimal number of up to 32 bits, never negative. Letters in
/// either case. A number too large for a double is not numeric, one too small is 0.
std::optional<double> ParseNumber(std::string_view text);

/// True exactly when TrimmedNumber takes the text.
bool IsNumeric(std::string_view text);

/// The value of a numeric text; throws ValueError naming the text when it is not numeric.
double TrimmedNumber(std::string_view text);

/// To a whole number; halves go to the even neighbour.
double RoundHalfEven(double value);

// To a whole number of 8, 16 or 32 bits, halves to the even neighbour. Throw ValueError when the rounded value is
// beyond the range of the type, infinite or no number.
std::uint8_t ToByte(double value);
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

/// To so many decimals; halves of the plain decimal text go to the even neighbour. Throws ValueError when the value is
/// infinite or no number.
double RoundedTo(int decimals, double value);

}  // namespace tallyhut
