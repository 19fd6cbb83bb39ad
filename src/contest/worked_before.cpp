#include "contest/worked_before.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace tallyhut {
namespace {

constexpr std::size_t kListLength = 125;

/// Puts the call of a row in front; false when nothing more has room.
bool Lists(const ContactLog& log, std::int32_t row, std::string& list) {
    list.insert(0, log.Row(row).Call + ' ');
    return list.size() <= kListLength;
}

/// Of a few calls: their rows, the oldest first, as far as they are needed.
std::string ListOf(const ContactLog& log, std::span<const CallOrder::Place> places) {
    std::vector<std::int32_t> rows(places.size());
    std::ranges::transform(places, rows.begin(), &CallOrder::Place::row);
    std::ranges::make_heap(rows, std::greater{});
    std::string list;
    for (auto end = rows.end(); end != rows.begin(); --end) {
        std::pop_heap(rows.begin(), end, std::greater{});
        if (!Lists(log, *(end - 1), list)) {
            break;
        }
    }
    return list;
}

/// Where many calls begin so, the oldest of them stand not far from the begin of the log.
std::string ListFromOldest(const ContactLog& log, std::string_view begin) {
    std::string list;
    for (std::int32_t row = 1; row <= log.gContactCount(); ++row) {
        if (log.Row(row).Call.starts_with(begin) && !Lists(log, row, list)) {
            break;
        }
    }
    return list;
}

}  // namespace

std::optional<std::int32_t> WorkedBefore(const ContactLog& log, std::string_view call) {
    const auto places = log.CallsOf(call);
    return places.empty() ? std::nullopt : std::optional{places.front().row};
}

std::string PartialCalls(const ContactLog& log, std::string_view begin) {
    constexpr std::size_t kMany = 256;
    const auto places = log.CallsBeginning(begin);
    return places.size() <= kMany ? ListOf(log, places) : ListFromOldest(log, begin);
}

bool HasCallAreaDigit(std::string_view firstThree) {
    const auto numeric = [](char character) { return character >= '/' && character <= '9'; };
    return numeric(firstThree[1]) || numeric(firstThree[2]);
}

}  // namespace tallyhut
