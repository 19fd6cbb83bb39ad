#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyhut {

/// A date and time of day in whole seconds, with no time zone: whoever keeps one knows whether it is local or UTC.
///
/// The first moment is the zero date: a time that stands alone lies on it. Years are 100 to 9999; the day is one that
/// the calendar has.
struct DateTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    auto operator<=>(const DateTime&) const = default;
};

// Texts of dates and times, with blanks around them allowed; none throws.
//
// A date is year/month/day with a year of three or four digits, month/day/year, or month/day of the present year. The
// separator is "/" or "-", the same between all parts; month and day have one or two digits. A year of one or two
// digits is in the 1900s from 30 on, in the 2000s below. A time is h:mm or h:mm:ss, from 0:00 to 23:59:59, or from 1:00
// to 12:59:59 with "AM" or "PM" behind it, in either case, with or without blanks between. The two are never guessed
// from another order: 26/11/07 is no date.

/// A date alone (at midnight), a time alone (on the zero date), or a date, blanks and a time.
std::optional<DateTime> ParseDateTime(std::string_view text, int presentYear);

/// A date and nothing else; at midnight.
std::optional<DateTime> ParseDate(std::string_view text, int presentYear);

/// A time and nothing else; on the zero date.
std::optional<DateTime> ParseTime(std::string_view text);

/// True when ParseDate takes the text whatever the present year: 2/29 without a year is none.
bool IsDate(std::string_view text);

/// True when ParseTime takes the text.
bool IsTime(std::string_view text);

// Arithmetic. Throws ValueError when the result leaves the years 100 to 9999, when a number is infinite or none, and
// when a date and time that is given does not exist.

/// A fraction is rounded to a whole minute, halves to the even one.
DateTime AddMinutes(const DateTime& from, double minutes);

/// A fraction is rounded to a whole hour, halves to the even one: 2.5 hours are 2.
DateTime AddHours(const DateTime& from, double hours);

DateTime AddSeconds(const DateTime& from, std::int64_t seconds);

/// Negative when the second moment is the earlier.
std::int64_t SecondsBetween(const DateTime& from, const DateTime& to);

}  // namespace tallyhut
