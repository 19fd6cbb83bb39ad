#pragma once

#include <string>
#include <string_view>

#include "contest/preferences.h"
#include "values/number.h"

namespace tallyhut {

// The pieces that several reports have in common.

/// What the operator is told before each report of the old manner.
inline constexpr const char* kOldFormatTitle = "This traditional log submission format may not be valid after 1999!";

/// Hours and minutes of a time text without what stands between them: characters 1, 2, 4 and 5 of it.
inline std::string HoursAndMinutes(std::string_view time) {
    std::string text{time.substr(0, 2)};
    if (time.size() > 3) {
        text += time.substr(3, 2);
    }
    return text;
}

inline std::string_view ContestWords(const Preferences& station) {
    return station.gContestMode == 1 ? "PHONE CONTEST" : "CW CONTEST";
}

/// Precedence, call, check and section as the station sends them.
inline std::string SentExchange(const Preferences& station) {
    return station.gOwnPrec + ' ' + station.gOwnCall + ' ' + station.gOwnCheck + ' ' + station.gOwnSection;
}

/// A value of a file as it is told of, in quotes; a long one is cut.
inline std::string Quoted(std::string_view value) {
    constexpr std::size_t kLongest = 24;
    const bool isLong = value.size() > kLongest;
    return '"' + std::string{value.substr(0, kLongest)} + (isLong ? "...\"" : "\"");
}

/// A number as it prints within a line: its number form and a blank behind it.
template <typename T>
std::string PrintedNumber(T value) {
    return NumberForm(value) + ' ';
}

}  // namespace tallyhut
