#include "spots/worked_calls.h"

#include <utility>

namespace tallyhut {

void WorkedCalls::Learn(const ContactLog& log, const std::vector<std::string_view>& calls) {
    if (std::exchange(rowsLent_, log.RowsLent()) != log.RowsLent() ||
        std::exchange(count_, log.gContactCount) != log.gContactCount) {
        known_.clear();
    }
    decltype(known_) learnt;
    decltype(known_) asked;
    for (const std::string_view call : calls) {
        const auto before = known_.find(call);
        if (before != known_.end()) {
            learnt.insert(*before);
        } else {
            asked.emplace(call, false);
        }
    }
    for (std::int32_t row = 1; row <= log.gContactCount && !asked.empty(); ++row) {
        const auto found = asked.find(log.Row(row).Call);
        if (found != asked.end()) {
            found->second = true;
        }
    }
    learnt.merge(asked);
    known_ = std::move(learnt);
}

bool WorkedCalls::Has(std::string_view call) const {
    const auto found = known_.find(call);
    return found != known_.end() && found->second;
}

}  // namespace tallyhut
