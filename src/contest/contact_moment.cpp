#include "contest/contact_moment.h"

#include <algorithm>

#include "values/date_time.h"

namespace tallyhut {
namespace {

/// A date of two parts bears none.
bool BearsYear(const std::string& date) {
    constexpr std::ptrdiff_t kBetweenThree = 2;
    return std::ranges::count(date, date.find('-') == std::string::npos ? '/' : '-') >= kBetweenThree;
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
