#include "contest/off_time.h"

#include <algorithm>
#include <chrono>

#include "values/format.h"

namespace tallyhut {
namespace {

/// What the minutes from one contact to the next add, the next one's own included.
std::int64_t Operated(ContestMinute from, ContestMinute to) {
    const std::int64_t empty = to - from - 1;
    return empty >= kLeastOffTime ? 1 : to - from;
}

}  // namespace

std::string ClockText(std::int64_t minutes) {
    return FormatNumber(minutes / kMinutesOfAnHour, "00") + ':' + FormatNumber(minutes % kMinutesOfAnHour, "00");
}

ContestMinute MinuteOf(const DateTime& utc) {
    return MinuteOf(SecondsBetween({}, utc));
}

ContestMinute MinuteOf(ContactMoment moment) {
    return std::chrono::floor<std::chrono::minutes>(std::chrono::seconds{moment}).count();
}

std::vector<ContestMinute> MinutesOf(const ContactLog& log, int presentYear) {
    std::vector<ContestMinute> minutes;
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        if (const std::optional<ContactMoment> moment = log.MomentOf(n, presentYear)) {
            minutes.push_back(MinuteOf(*moment));
        }
    }
    std::ranges::sort(minutes);
    return minutes;
}

OffTime OffTimeAt(ContestMinute now, std::span<const ContestMinute> contacts) {
    OffTime at;
    if (contacts.empty()) {
        return at;
    }
    std::int64_t operated = 1;
    for (std::size_t i = 1; i < contacts.size(); ++i) {
        operated += Operated(contacts[i - 1], contacts[i]);
    }
    at.silence = std::max<std::int64_t>(now - contacts.back() - 1, 0);
    at.offFrom = contacts.back() + 1 + kLeastOffTime;
    operated += at.IsOff() ? 0 : at.silence;
    at.left = std::max<std::int64_t>(kMinutesToOperate - operated, 0);
    return at;
}

std::optional<ContestMinute> FirstMinuteBeyond(std::span<const ContestMinute> contacts) {
    std::int64_t operated = 1;
    for (std::size_t i = 1; i < contacts.size(); ++i) {
        operated += Operated(contacts[i - 1], contacts[i]);
        if (operated > kMinutesToOperate) {
            return contacts[i];
        }
    }
    return std::nullopt;
}

}  // namespace tallyhut
