#include "contest/worked_before.h"

#include <algorithm>
#include <bitset>

namespace tallyhut {
namespace {

constexpr std::size_t kListLength = 125;
constexpr std::size_t kLooks = 4096;

/// What most calls differ in, their last characters, so that a row that is none of a few is told by one look.
std::size_t LookOf(std::string_view call) {
    constexpr std::size_t kBase = 37;
    constexpr std::size_t kCharacters = 3;
    std::size_t look = 0;
    for (const char character : call.substr(call.size() - std::min(call.size(), kCharacters))) {
        look = look * kBase + static_cast<unsigned char>(character);
    }
    return look % kLooks;
}

}  // namespace

std::optional<std::int32_t> WorkedBefore(const ContactLog& log, std::string_view call) {
    for (std::int32_t row = 1; row <= log.gContactCount; ++row) {
        if (log.Row(row).Call == call) {
            return row;
        }
    }
    return std::nullopt;
}

std::vector<bool> WorkedAmong(const ContactLog& log, const std::vector<std::string_view>& calls) {
    std::bitset<kLooks> looks;
    for (const std::string_view call : calls) {
        looks.set(LookOf(call));
    }
    std::vector<bool> worked(calls.size());
    const std::int32_t rows = calls.empty() ? 0 : log.gContactCount;
    for (std::int32_t row = 1; row <= rows; ++row) {
        const std::string& call = log.Row(row).Call;
        if (!looks.test(LookOf(call))) {
            continue;
        }
        const auto same = std::ranges::find(calls, call);
        if (same != calls.end()) {
            worked[static_cast<std::size_t>(same - calls.begin())] = true;
        }
    }
    return worked;
}

std::string PartialCalls(const ContactLog& log, std::string_view begin) {
    std::string list;
    for (std::int32_t row = 1; row <= log.gContactCount && list.size() <= kListLength; ++row) {
        const std::string& call = log.Row(row).Call;
        if (call.starts_with(begin)) {
            list.insert(0, call + ' ');
        }
    }
    return list;
}

bool HasCallAreaDigit(std::string_view firstThree) {
    const auto numeric = [](char character) { return character >= '/' && character <= '9'; };
    return numeric(firstThree[1]) || numeric(firstThree[2]);
}

}  // namespace tallyhut
