#include "reports/log_check.h"

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>
#include <utility>

#include "contest/bands.h"
#include "contest/call_area.h"
#include "contest/off_time.h"
#include "contest/score.h"
#include "reports/entry_head.h"
#include "reports/report_text.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::string_view kPrecedences = "QABUMS";
constexpr const char* kLetterO = "the letter O where a zero belongs";
constexpr const char* kFirstTag = "START-OF-LOG";
constexpr ContestMinute kHopMinutes = 10;

using Objection = std::optional<std::string>;
using Findings = std::vector<Finding>;

/// A log with what several checks need of it.
struct Subject {
    explicit Subject(const CheckedLog& looked) : checked{looked}, head{ReadEntryHead(looked.entry.value_or(""))} {
        if (!head.empty() && head.front().tag != kFirstTag) {
            head.clear();
        }
        minutes.resize(static_cast<std::size_t>(Count()) + 1);
        for (std::int32_t n = 1; n <= Count(); ++n) {
            if (const std::optional<ContactMoment> moment = checked.log.MomentOf(n, checked.presentYear)) {
                minutes[static_cast<std::size_t>(n)] = MinuteOf(*moment);
            }
        }
    }

    const CheckedLog& checked;
    std::vector<std::optional<ContestMinute>> minutes;  ///< by row
    std::vector<HeadLine> head;                         ///< of the entry; none where the file is no entry

    std::int32_t Count() const { return checked.log.gContactCount(); }
    const Contact& Row(std::int32_t n) const { return checked.log.Row(n); }
    const std::optional<ContestMinute>& Minute(std::int32_t n) const { return minutes[static_cast<std::size_t>(n)]; }
};

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsLetter(char character) {
    return character >= 'A' && character <= 'Z';
}

bool IsWhole(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, IsDigit);
}

/// Asks for each contact by itself.
template <typename Ask>
void OfEach(const Subject& subject, const char* field, Findings& findings, const Ask& ask) {
    for (std::int32_t n = 1; n <= subject.Count(); ++n) {
        if (Objection objection = ask(n, subject.Row(n))) {
            findings.push_back({n, field, std::move(*objection)});
        }
    }
}

/// Asks for a field by itself; its value stands in front of the objection.
template <typename Ask>
void OfField(const Subject& subject, const char* field, std::string Contact::*value, Findings& findings,
             const Ask& ask) {
    OfEach(subject, field, findings, [&ask, value](std::int32_t /*n*/, const Contact& contact) -> Objection {
        const Objection objection = ask(contact.*value);
        return objection ? Objection{Quoted(contact.*value) + ": " + *objection} : Objection{};
    });
}

void SerialsThatAreNoNumber(const Subject& subject, Findings& findings) {
    OfField(subject, "Ns", &Contact::Ns, findings,
            [](const std::string& value) -> Objection { return IsWhole(value) ? Objection{} : "no number"; });
}

std::optional<double> SerialOf(const Contact& contact) {
    return IsWhole(contact.Ns) ? ParseNumber(contact.Ns) : std::nullopt;
}

void SerialsOutOfRow(const Subject& subject, Findings& findings) {
    OfEach(subject, "Ns", findings, [&](std::int32_t n, const Contact& contact) -> Objection {
        const std::optional<double> before = n == 1 ? std::nullopt : SerialOf(subject.Row(n - 1));
        const std::optional<double> serial = SerialOf(contact);
        const bool follows = !before || !serial || *serial == *before + 1;
        return follows ? Objection{} : Quoted(contact.Ns) + " follows " + Quoted(subject.Row(n - 1).Ns);
    });
}

void NumbersReceived(const Subject& subject, Findings& findings) {
    OfField(subject, "Nr", &Contact::Nr, findings, [](const std::string& value) -> Objection {
        if (IsWhole(value)) {
            return {};
        }
        return value.find('O') != std::string::npos ? kLetterO : "no number";
    });
}

void Precedences(const Subject& subject, Findings& findings) {
    OfField(subject, "P", &Contact::P, findings, [](const std::string& value) -> Objection {
        const bool isOne = value.size() == 1 && kPrecedences.find(value) != std::string_view::npos;
        return isOne ? Objection{} : "none of Q, A, B, U, M and S";
    });
}

bool IsACall(std::string_view call) {
    return call.size() >= 3 && std::ranges::any_of(call, IsDigit) && std::ranges::any_of(call, IsLetter) &&
           std::ranges::all_of(
               call, [](char character) { return IsDigit(character) || IsLetter(character) || character == '/'; });
}

void CallsThatAreNone(const Subject& subject, Findings& findings) {
    const std::string own = Trim(subject.checked.station.gOwnCall);
    OfEach(subject, "Call", findings, [&own](std::int32_t /*n*/, const Contact& contact) -> Objection {
        if (!IsACall(contact.Call)) {
            return "no call";
        }
        return contact.Call == own ? Objection{"your own call"} : Objection{};
    });
}

void Duplicates(const Subject& subject, Findings& findings) {
    std::unordered_map<std::string_view, std::int32_t> firstRows;
    firstRows.reserve(static_cast<std::size_t>(subject.Count()));
    OfEach(subject, "Call", findings, [&firstRows](std::int32_t n, const Contact& contact) -> Objection {
        const auto [first, isNew] = firstRows.try_emplace(contact.Call, n);
        return isNew ? Objection{} : "duplicate of Rec# " + PlainText(first->second);
    });
}

void CallsBesideKnownOnes(const Subject& subject, Findings& findings) {
    const KnownCalls& known = subject.checked.known;
    if (known.IsEmpty()) {
        return;
    }
    OfEach(subject, "Call", findings, [&known](std::int32_t /*n*/, const Contact& contact) -> Objection {
        const std::optional<std::string> other = known.OneLetterAway(contact.Call);
        return other ? Objection{"one letter from " + *other + ", a known call"} : Objection{};
    });
}

void ChecksThatAreNone(const Subject& subject, Findings& findings) {
    OfField(subject, "Ck", &Contact::Ck, findings, [](const std::string& value) -> Objection {
        if (value.size() == 2 && IsWhole(value)) {
            return {};
        }
        return value.find('O') != std::string::npos ? kLetterO : "not two digits";
    });
}

void SectionsThatAreNone(const Subject& subject, Findings& findings) {
    const SectionList& list = subject.checked.sections.List();
    OfField(subject, "Sec", &Contact::Sec, findings, [&list](const std::string& value) -> Objection {
        if (list.Find(value) != 0) {
            return {};
        }
        const std::string_view code = list.CodeOf(value);
        return code == value ? "no section of this contest" : "the section is " + std::string{code};
    });
}

void SectionsBeyondTheCallsArea(const Subject& subject, Findings& findings) {
    const SectionList& list = subject.checked.sections.List();
    std::vector<CallArea> areas{CallArea::Unknown};
    std::ranges::transform(list.sections, std::back_inserter(areas), AreaOfSection);
    OfEach(subject, "Sec", findings, [&](std::int32_t /*n*/, const Contact& contact) -> Objection {
        const CallArea ofCall = AreaOfCall(contact.Call);
        const CallArea ofSection = areas[static_cast<std::size_t>(list.Find(contact.Sec))];
        if (ofCall == ofSection || ofCall == CallArea::Unknown || ofSection == CallArea::Unknown) {
            return {};
        }
        return Quoted(contact.Sec) + ": a section of " + std::string{WordsFor(ofSection)} + ", the call is of " +
               std::string{WordsFor(ofCall)};
    });
}

/// Nothing is asked where the contact has a minute, and so a date and a time.
void DatesThatAreNone(const Subject& subject, Findings& findings) {
    OfEach(subject, "Date", findings, [&subject](std::int32_t n, const Contact& contact) -> Objection {
        const bool isDate = subject.Minute(n) || ParseDate(contact.Date, subject.checked.presentYear);
        return isDate ? Objection{} : Quoted(contact.Date) + ": no date";
    });
}

void TimesThatAreNone(const Subject& subject, Findings& findings) {
    OfEach(subject, "Time", findings, [&subject](std::int32_t n, const Contact& contact) -> Objection {
        return subject.Minute(n) || IsTime(contact.Time) ? Objection{} : Quoted(contact.Time) + ": no time";
    });
}

void TimesOutOfOrder(const Subject& subject, Findings& findings) {
    std::optional<ContestMinute> before;
    std::int32_t rowBefore = 0;
    OfEach(subject, "Time", findings, [&](std::int32_t n, const Contact& /*contact*/) -> Objection {
        const std::optional<ContestMinute>& minute = subject.Minute(n);
        if (!minute) {
            return {};
        }
        const std::optional<ContestMinute> last = std::exchange(before, minute);
        const std::int32_t row = std::exchange(rowBefore, n);
        return last > minute ? Objection{"earlier than the contact before it, Rec# " + PlainText(row)} : Objection{};
    });
}

void ContactsBeyondTheHours(const Subject& subject, Findings& findings) {
    std::vector<ContestMinute> sorted;
    for (const std::optional<ContestMinute>& minute : subject.minutes) {
        if (minute) {
            sorted.push_back(*minute);
        }
    }
    std::ranges::sort(sorted);
    const std::optional<ContestMinute> beyond = FirstMinuteBeyond(sorted);
    if (!beyond) {
        return;
    }
    OfEach(subject, "Time", findings, [&](std::int32_t n, const Contact& /*contact*/) -> Objection {
        const bool counts = !subject.Minute(n) || *subject.Minute(n) < *beyond;
        return counts ? Objection{} : "after the 24th hour of operating";
    });
}

bool IsContestBand(std::string_view name) {
    const Band* band = FindBand(name);
    return band != nullptr && !band->readings.IsEmpty();
}

void BandsThatAreNone(const Subject& subject, Findings& findings) {
    OfField(subject, "Bnd", &Contact::Bnd, findings, [](const std::string& value) -> Objection {
        return IsContestBand(value) ? Objection{} : "no band of the contest";
    });
}

/// Whether the contacts are on two bands, with no more between them than the minutes of a hop.
bool Hops(const Subject& subject, std::int32_t one, std::int32_t other) {
    const std::optional<ContestMinute>& at = subject.Minute(one);
    const std::optional<ContestMinute>& otherAt = subject.Minute(other);
    return subject.Row(one).Bnd != subject.Row(other).Bnd && at && otherAt && std::abs(*at - *otherAt) <= kHopMinutes;
}

void BandHops(const Subject& subject, Findings& findings) {
    OfEach(subject, "Bnd", findings, [&subject](std::int32_t n, const Contact& contact) -> Objection {
        const bool isBetween = n > 1 && n < subject.Count() && IsContestBand(contact.Bnd);
        if (!isBetween || !Hops(subject, n, n - 1) || !Hops(subject, n, n + 1)) {
            return {};
        }
        return Quoted(contact.Bnd) + " between " + Quoted(subject.Row(n - 1).Bnd) + " and " +
               Quoted(subject.Row(n + 1).Bnd) + " within 10 minutes";
    });
}

void EntriesThatAreNone(const Subject& subject, Findings& findings) {
    if (subject.checked.entry && subject.head.empty()) {
        findings.push_back({0, kFirstTag, "the entry file does not begin with it"});
    }
}

void HeadLinesBeyondTheLists(const Subject& subject, Findings& findings) {
    for (const HeadLine& line : subject.head) {
        if (Objection objection = ObjectionTo(line, subject.checked.sections.List())) {
            findings.push_back({0, line.tag, std::move(*objection)});
        }
    }
}

void ClaimedScores(const Subject& subject, Findings& findings) {
    const std::string score = PlainText(ClaimedScore(subject.Count(), subject.checked.sections.gSectionsWorked));
    for (const HeadLine& line : subject.head) {
        if (line.tag == "CLAIMED-SCORE" && line.value != score) {
            findings.push_back({0, line.tag, "the score of the log is " + score});
        }
    }
}

/// In the order in which the fields stand in the list of contacts.
constexpr std::array kChecks{
    SerialsThatAreNoNumber, SerialsOutOfRow,
    NumbersReceived,        Precedences,
    CallsThatAreNone,       Duplicates,
    CallsBesideKnownOnes,   ChecksThatAreNone,
    SectionsThatAreNone,    SectionsBeyondTheCallsArea,
    DatesThatAreNone,       TimesThatAreNone,
    TimesOutOfOrder,        ContactsBeyondTheHours,
    BandsThatAreNone,       BandHops,
    EntriesThatAreNone,     HeadLinesBeyondTheLists,
    ClaimedScores,
};

}  // namespace

std::vector<Finding> FindingsIn(const CheckedLog& checked) {
    const Subject subject{checked};
    Findings findings;
    for (const auto check : kChecks) {
        check(subject, findings);
    }
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
        return finding.row == 0 ? std::numeric_limits<std::int32_t>::max() : finding.row;
    });
    return findings;
}

}  // namespace tallyhut
