#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace tallyhut {

/// The last answers of a function that is asked the same few things again and again, and always answers the same. Of
/// more things than are kept, those found first are worked out again.
template <typename Question, typename Answer, std::size_t kKept>
class LastAnswers {
public:
    template <typename Function>
    const Answer& Of(const Question& question, const Function& function) {
        const auto known =
            std::ranges::find_if(kept_, [&question](const auto& each) { return each && each->first == question; });
        if (known != kept_.end()) {
            return (*known)->second;
        }
        std::optional<std::pair<Question, Answer>>& oldest = kept_.at(next_++ % kKept);
        oldest.emplace(question, function());
        return oldest->second;
    }

private:
    std::array<std::optional<std::pair<Question, Answer>>, kKept> kept_;
    std::size_t next_ = 0;
};

}  // namespace tallyhut
