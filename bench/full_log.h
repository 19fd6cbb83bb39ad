#pragma once

#include <array>
#include <string>
#include <string_view>

#include "contest/contact_record.h"
#include "contest/section_table.h"
#include "values/date_time.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {

/// Calls that never repeat: K1AAA, K1AAB, ...
inline std::string CallOf(int n) {
    std::string call = "K1";
    for (const int place : {676, 26, 1}) {
        call += static_cast<char>('A' + n / place % 26);
    }
    return call;
}

/// The call of contact n, which never repeats either: of every length from four to eleven characters, most of them with
/// K and W, as contests have them.
inline std::string LoggedCall(int n) {
    constexpr std::array<std::string_view, 12> kPrefixes{"K",  "W",  "N",  "K",  "W",   "AA",
                                                         "KC", "WA", "VE", "AB", "KH6", "VY2"};
    const auto prefix = static_cast<std::size_t>(n) % kPrefixes.size();
    std::string call{kPrefixes.at(prefix)};
    const int among = n / static_cast<int>(kPrefixes.size());
    call += static_cast<char>('0' + among % 10);
    // The two prefixes that stand twice differ in their first letter.
    call += static_cast<char>((prefix < 3 ? 'A' : 'N') + among / 10 % 13);
    for (int rest = among / 130; rest > 0; rest /= 26) {
        call += static_cast<char>('A' + rest % 26);
    }
    return call + (n % 11 == 0 ? "X/QRP" : n % 5 == 0 ? "X/4" : n % 2 == 0 ? "X" : "");
}

/// So many contacts, the newest a few seconds ago, in the 30 hours of a contest.
inline std::string FullLog(int contacts, const DateTime& now, std::int64_t duration = 108'000) {
    std::string text;
    for (int n = 1; n <= contacts; ++n) {
        const DateTime at = AddSeconds(now, -duration + duration * n / contacts);
        text += WriteRecord({.Ns = PlainText(n),
                             .Nr = PlainText(n % 999 + 1),
                             .P = "A",
                             .Call = LoggedCall(n),
                             .Ck = "72",
                             .Sec = ToldSections().Section(n % 83 + 1).code,
                             .Date = FormatDateTime(at, "yyyy/mm/dd"),
                             .Time = FormatDateTime(at, "hh:mm:ss"),
                             .Bnd = "40",
                             .Frq = ""});
    }
    return text;
}

}  // namespace tallyhut
