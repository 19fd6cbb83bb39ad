#pragma once

#include <string>

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

/// A contest of 30 hours, the newest contact a few seconds ago.
inline std::string FullLog(int contacts, const DateTime& now) {
    constexpr std::int64_t kContest = 108'000;
    std::string text;
    for (int n = 1; n <= contacts; ++n) {
        const DateTime at = AddSeconds(now, -kContest + kContest * n / contacts);
        text += WriteRecord({.Ns = PlainText(n),
                             .Nr = PlainText(n % 999 + 1),
                             .P = "A",
                             .Call = CallOf(n),
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
