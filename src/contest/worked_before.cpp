#include "contest/worked_before.h"

namespace tallyhut {
namespace {

constexpr std::size_t kListLength = 125;

}  // namespace

std::optional<std::int32_t> WorkedBefore(const ContactLog& log, std::string_view call) {
    for (std::int32_t row = 1; row <= log.gContactCount; ++row) {
        if (log.Row(row).Call == call) {
            return row;
        }
    }
    return std::nullopt;
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
