#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "contest/contact_log.h"
#include "values/date_time.h"

namespace tallyhut {

// The rule of the sponsor: of the 30 hours of the contest 24 count, and a time off the air is at least 30 minutes long.
// A log has whole minutes, so off is what lies between two contacts with 30 empty minutes or more between them: behind
// 21:00 it is 21:31 before the next one. All other minutes from the first contact to the last are operated.

inline constexpr std::int64_t kMinutesOfAnHour = 60;
inline constexpr std::int64_t kMinutesOfADay = 24 * kMinutesOfAnHour;
/// The minutes that a station may operate.
inline constexpr std::int64_t kMinutesToOperate = 24 * kMinutesOfAnHour;
/// The empty minutes that are off.
inline constexpr std::int64_t kLeastOffTime = 30;

/// A minute of UTC, counted from the zero date.
using ContestMinute = std::int64_t;

/// Minutes as hours and minutes, "03:12"; hours have two digits or more.
std::string ClockText(std::int64_t minutes);

/// The minute that the moment lies in.
ContestMinute MinuteOf(const DateTime& utc);

/// The minute that a contact's moment lies in.
ContestMinute MinuteOf(ContactMoment moment);

/// The minutes of the contacts in order; those with a date or time that is none are left out.
std::vector<ContestMinute> MinutesOf(const ContactLog& log, int presentYear);

/// How a station stands to the 24 hours.
struct OffTime {
    std::int64_t left = kMinutesToOperate;  ///< minutes to operate; never below 0
    std::int64_t silence = 0;               ///< empty minutes since the newest contact, without the present one
    std::optional<ContestMinute> offFrom;  ///< when the silence will be off, or has become so; nothing before a contact

    /// Whether the silence is off by now.
    bool IsOff() const { return silence >= kLeastOffTime; }

    bool operator==(const OffTime&) const = default;
};

/// As it stands at a minute. The present silence counts as operating until it is off; a clock that stands before the
/// newest contact adds nothing.
///
/// @param contacts  their minutes in order
OffTime OffTimeAt(ContestMinute now, std::span<const ContestMinute> contacts);

/// The first minute with a contact that is beyond the 24 hours; nothing where all of them count.
///
/// @param contacts  their minutes in order
std::optional<ContestMinute> FirstMinuteBeyond(std::span<const ContestMinute> contacts);

}  // namespace tallyhut
