#pragma once

#include <string>
#include <string_view>

#include "values/date_time.h"
#include "values/number.h"

namespace tallyhut {

// Pictures of numbers and dates. A picture with a character that is not named here throws ValueError.

/// The value by a picture of "#" (a digit, if there is one), "0" (a digit in any case), one "." and "," (thousands
/// apart).
///
/// More digits before the point than the picture has are all shown; behind it the decimal text of the value, 15 digits,
/// is rounded, halves away from zero. The point stands even if no digit follows it, and nothing need stand before it:
/// "#.0" of 0 is ".0", "#.#" of 14 is "14.". What is rounded to zero has no sign. Throws ValueError when the value is
/// infinite or no number.
std::string FormatNumber(double value, std::string_view picture);

/// The same with the decimal text of a float, 7 digits: 14.0125F by ".000" is 14.013, on whichever side of it the float
/// lies.
std::string FormatNumber(float value, std::string_view picture);

template <WholeNumber T>
std::string FormatNumber(T value, std::string_view picture) {
    return FormatNumber(static_cast<double>(value), picture);
}

/// Month, day and year without leading zeros, for a machine whose locale says nothing.
inline constexpr std::string_view kShortDate = "m/d/yyyy";

/// The date and time by a picture of yyyy, yy, m, mm, d, dd, h, hh, n, nn (minutes), s, ss, AMPM and ddddd (the short
/// date), letters in either case; what is no letter stands for itself.
///
/// m and mm are minutes where the hour is the part before them. With AMPM hours run from 12 through 1 to 11.
std::string FormatDateTime(const DateTime& at, std::string_view picture, std::string_view shortDate = kShortDate);

/// A text of a date, a time or both by the picture; any other text formats to itself.
std::string FormatDateText(std::string_view text, std::string_view picture, int presentYear);

/// The date in the machine's own short form.
///
/// @param pattern  a picture of the date parts in the order that the locale has them
std::string ShortDate(const DateTime& at, std::string_view pattern = kShortDate);

}  // namespace tallyhut
