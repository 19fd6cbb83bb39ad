#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/call_key.h"

namespace tallyhut {

/// The calls that are known to be somebody's. Asking is cheap enough to ask for each contact of a log.
class KnownCalls {
public:
    /// In any order, twice or not; sorted ones are taken in at once.
    explicit KnownCalls(std::vector<CallKey> calls);

    bool IsEmpty() const { return calls_.empty(); }
    /// To the letter.
    bool Knows(std::string_view call) const;
    /// A known call that this one becomes when one character is replaced, two neighbours are swapped, one is put in or
    /// one is left out; of several the first in that order. Nothing for a call that is known itself.
    std::optional<std::string> OneLetterAway(std::string_view call) const;

private:
    bool MayHold(CallKey call) const;
    bool Holds(CallKey call) const;

    std::vector<CallKey> calls_;         ///< sorted
    std::vector<std::uint64_t> filter_;  ///< says of nearly every call that is not there that it is not
};

}  // namespace tallyhut
