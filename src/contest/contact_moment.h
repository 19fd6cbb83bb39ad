#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "contest/contact_record.h"

namespace tallyhut {

/// When a contact was: seconds of UTC since the zero date.
using ContactMoment = std::int64_t;

/// Reads when contacts were, one after the other: a date that stands in the one before as well is read once.
class MomentReader {
public:
    /// @param presentYear  of dates that bear none; without it they are none
    explicit MomentReader(std::optional<int> presentYear) : presentYear_{presentYear} {}

    /// Nothing where the date or the time is none.
    std::optional<ContactMoment> MomentOf(const Contact& contact);

private:
    std::optional<ContactMoment> MidnightOf(const std::string& date) const;

    std::optional<int> presentYear_;
    std::string date_;  ///< that was read last
    std::optional<ContactMoment> midnight_;
};

/// The same of one contact; a date that stands alone is midnight, a time that stands alone lies on the zero date.
std::optional<ContactMoment> MomentAsFarAsWritten(const Contact& contact, int presentYear);

}  // namespace tallyhut
