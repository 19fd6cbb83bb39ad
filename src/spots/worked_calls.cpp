#include "spots/worked_calls.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tallyhut {
namespace {

std::size_t HashOf(std::string_view call) {
    return std::hash<std::string_view>{}(call);
}

}  // namespace

void WorkedCalls::Learn(const ContactLog& log, const std::vector<std::string_view>& calls) {
    if (rowsLent_ != log.RowsLent() || count_ != log.gContactCount) {
        rowsLent_ = log.RowsLent();
        count_ = log.gContactCount;
        known_.clear();
        hashes_.clear();
        for (std::int32_t row = 1; row <= count_; ++row) {
            hashes_.push_back(HashOf(log.Row(row).Call));
        }
    }
    decltype(known_) learnt;
    for (const std::string_view call : calls) {
        const auto before = known_.find(call);
        learnt.emplace(call, before != known_.end() ? before->second : IsIn(log, call));
    }
    known_ = std::move(learnt);
}

bool WorkedCalls::IsIn(const ContactLog& log, std::string_view call) const {
    const std::size_t hash = HashOf(call);
    for (auto same = std::ranges::find(hashes_, hash); same != hashes_.end();
         same = std::find(same + 1, hashes_.end(), hash)) {
        if (log.Row(static_cast<std::int32_t>(same - hashes_.begin()) + 1).Call == call) {
            return true;
        }
    }
    return false;
}

bool WorkedCalls::Has(std::string_view call) const {
    const auto found = known_.find(call);
    return found != known_.end() && found->second;
}

}  // namespace tallyhut
