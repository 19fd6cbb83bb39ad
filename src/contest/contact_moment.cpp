#include "contest/contact_moment.h"

#include <algorithm>

#include "values/date_time.h"

namespace tallyhut {
namespace {

constexpr std::size_t kYearDigits = 4;

/// "2026/11/07": the one form of a date that begins with four digits.
bool BearsYear(const std::string& date) {
    return date.size() > kYearDigits && std::all_of(date.begin(), date.begin() + kYearDigits, [](char character) {
               return character >= '0' && character <= '9';
           });
}

ContactMoment SecondsOfDay(const DateTime& time) {
    return (time.hour * 60 + time.minute) * 60 + time.second;
}

std::optional<ContactMoment> SecondsOf(const std::optional<DateTime>& moment) {
    return moment ? std::optional{SecondsBetween({}, *moment)} : std::nullopt;
}

}  // namespace

std::optional<ContactMoment> MomentReader::MomentOf(const Contact& contact) {
    if (contact.Date != date_) {
        midnight_ = MidnightOf(contact.Date);
        date_ = contact.Date;
    }
    const std::optional<DateTime> time = midnight_ ? ParseTime(contact.Time) : std::nullopt;
    return time ? std::optional{*midnight_ + SecondsOfDay(*time)} : std::nullopt;
}

std::optional<ContactMoment> MomentReader::MidnightOf(const std::string& date) const {
    constexpr int kNoneWanted = 2000;
    const bool isRead = presentYear_ || BearsYear(date);
    return isRead ? SecondsOf(ParseDate(date, presentYear_.value_or(kNoneWanted))) : std::nullopt;
}

std::optional<ContactMoment> MomentAsFarAsWritten(const Contact& contact, int presentYear) {
    return SecondsOf(ParseDateTime(contact.Date + ' ' + contact.Time, presentYear));
}

}  // namespace tallyhut
