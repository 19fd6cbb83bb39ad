#include "values/date_time.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <string>

#include "values/number.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {

namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kFirstYearOfThe1900s = 30;  // two-digit years from here on
constexpr int kCommonYear = 2001;         // has no February 29th

constexpr std::int64_t kSecondsAMinute = 60;
constexpr std::int64_t kSecondsAnHour = 3600;

std::chrono::year_month_day Calendar(const DateTime& at) {
    return {std::chrono::year{at.year}, std::chrono::month{static_cast<unsigned>(at.month)},
            std::chrono::day{static_cast<unsigned>(at.day)}};
}

bool IsWithin(int value, int first, int last) {
    return value >= first && value <= last;
}

bool Exists(const DateTime& at) {
    // month and day before the calendar looks at them: it keeps the low 8 bits only
    return IsWithin(at.year, kFirstYear, kLastYear) && IsWithin(at.month, 1, 12) && IsWithin(at.day, 1, 31) &&
           Calendar(at).ok() && IsWithin(at.hour, 0, 23) && IsWithin(at.minute, 0, 59) && IsWithin(at.second, 0, 59);
}

/// Seconds since the first moment of 1970.
std::int64_t Seconds(const DateTime& at) {
    if (!Exists(at)) {
        throw ValueError("there is no such date and time: " + PlainText(at.year) + "/" + PlainText(at.month) + "/" +
                         PlainText(at.day) + " " + PlainText(at.hour) + ":" + PlainText(at.minute) + ":" +
                         PlainText(at.second));
    }
    const auto days = std::chrono::sys_days{Calendar(at)};
    return std::chrono::seconds{days.time_since_epoch()}.count() + at.hour * kSecondsAnHour +
           at.minute * kSecondsAMinute + at.second;
}

DateTime FromSeconds(std::int64_t seconds) {
    const std::chrono::sys_seconds moment{std::chrono::seconds{seconds}};
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date{midnight};
    const std::chrono::hh_mm_ss time{moment - midnight};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count())};
}

/// Adds so many units, rounded to whole ones.
DateTime AddUnits(const DateTime& from, double units, std::int64_t secondsAUnit) {
    constexpr double kBeyondAllYears = 1e12;  // in any unit, and far from the limit of 64 bits
    if (!(std::fabs(units) < kBeyondAllYears)) {
        throw ValueError("the time to add leaves the years 100 to 9999");
    }
    return AddSeconds(from, static_cast<std::int64_t>(RoundHalfEven(units)) * secondsAUnit);
}

/// A text of digits, so many of them.
std::optional<int> Digits(std::string_view text, std::size_t least, std::size_t most) {
    if (text.size() < least || text.size() > most) {
        return std::nullopt;
    }
    int value = 0;
    for (const char character : text) {
        if (character < '0' || character > '9') {
            return std::nullopt;
        }
        value = 10 * value + (character - '0');
    }
    return value;
}

/// What stands between separators: as many parts as a date or a time has at most, the last of them with all that is
/// left.
struct Parts {
    static constexpr std::size_t kMost = 3;

    std::array<std::string_view, kMost> part;
    std::size_t count = 0;

    Parts(std::string_view text, char separator) {
        while (count < kMost) {
            const std::size_t end = count + 1 == kMost ? text.size() : std::min(text.find(separator), text.size());
            part.at(count++) = text.substr(0, end);
            if (end == text.size()) {
                return;
            }
            text.remove_prefix(end + 1);
        }
    }
    std::string_view operator[](std::size_t at) const { return part.at(at); }
};

std::optional<int> ParseYear(std::string_view text) {
    const auto year = Digits(text, 1, 4);
    if (!year || text.size() > 2) {
        return year;
    }
    return *year + (*year < kFirstYearOfThe1900s ? 2000 : 1900);
}

std::optional<DateTime> DateOf(std::optional<int> year, std::string_view month, std::string_view day) {
    const auto monthNumber = Digits(month, 1, 2);
    const auto dayNumber = Digits(day, 1, 2);
    if (!year || !monthNumber || !dayNumber) {
        return std::nullopt;
    }
    const DateTime date{.year = *year, .month = *monthNumber, .day = *dayNumber};
    return Exists(date) ? std::optional{date} : std::nullopt;
}

/// The hour of a 12-hour clock on the 24-hour clock; below 0 when the 12-hour clock has no such hour.
int HourOfDay(int hour, bool isAfternoon) {
    if (!IsWithin(hour, 1, 12)) {
        return -1;
    }
    return hour % 12 + (isAfternoon ? 12 : 0);
}

}  // namespace

std::optional<DateTime> ParseDateTime(std::string_view text, int presentYear) {
    if (const auto date = ParseDate(text, presentYear)) {
        return date;
    }
    if (const auto time = ParseTime(text)) {
        return time;
    }
    const std::string trimmed = Trim(text);
    const std::size_t gap = std::min(trimmed.find(' '), trimmed.size());
    auto at = ParseDate(trimmed.substr(0, gap), presentYear);
    const auto time = ParseTime(trimmed.substr(gap));
    if (!at || !time) {
        return std::nullopt;
    }
    at->hour = time->hour;
    at->minute = time->minute;
    at->second = time->second;
    return at;
}

std::optional<DateTime> ParseDate(std::string_view text, int presentYear) {
    const std::string trimmed = Trim(text);
    const Parts parts{trimmed, trimmed.find('-') == std::string::npos ? '/' : '-'};
    if (parts.count == 2) {
        return DateOf(presentYear, parts[0], parts[1]);
    }
    if (parts.count != 3) {
        return std::nullopt;
    }
    if (parts[0].size() > 2) {
        return DateOf(ParseYear(parts[0]), parts[1], parts[2]);
    }
    return DateOf(ParseYear(parts[2]), parts[0], parts[1]);
}

std::optional<DateTime> ParseTime(std::string_view text) {
    std::string trimmed = Trim(text);
    const std::string half =
        UpperCase(std::string_view{trimmed}.substr(trimmed.size() - std::min<std::size_t>(trimmed.size(), 2)));
    const bool isMorning = half == "AM";
    const bool isAfternoon = half == "PM";
    if (isMorning || isAfternoon) {
        trimmed = TrimEnd(trimmed.substr(0, trimmed.size() - 2));
    }
    const Parts parts{trimmed, ':'};
    if (parts.count != 2 && parts.count != 3) {
        return std::nullopt;
    }
    const auto hour = Digits(parts[0], 1, 2);
    const auto minute = Digits(parts[1], 2, 2);
    const auto second = parts.count == 3 ? Digits(parts[2], 2, 2) : 0;
    if (!hour || !minute || !second) {
        return std::nullopt;
    }
    const DateTime time{
        .hour = isMorning || isAfternoon ? HourOfDay(*hour, isAfternoon) : *hour, .minute = *minute, .second = *second};
    return Exists(time) ? std::optional{time} : std::nullopt;
}

bool IsDate(std::string_view text) {
    return ParseDate(text, kCommonYear).has_value();
}

bool IsTime(std::string_view text) {
    return ParseTime(text).has_value();
}

DateTime AddMinutes(const DateTime& from, double minutes) {
    return AddUnits(from, minutes, kSecondsAMinute);
}

DateTime AddHours(const DateTime& from, double hours) {
    return AddUnits(from, hours, kSecondsAnHour);
}

DateTime AddSeconds(const DateTime& from, std::int64_t seconds) {
    static const std::int64_t kFirst = Seconds({.year = kFirstYear, .month = 1, .day = 1});
    static const std::int64_t kLast =
        Seconds({.year = kLastYear, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59});
    const std::int64_t start = Seconds(from);
    if (seconds < kFirst - start || seconds > kLast - start) {
        throw ValueError("the time to add leaves the years 100 to 9999");
    }
    return FromSeconds(start + seconds);
}

std::int64_t SecondsBetween(const DateTime& from, const DateTime& to) {
    return Seconds(to) - Seconds(from);
}

}  // namespace tallyhut
