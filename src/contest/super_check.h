#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "contest/call_key.h"
#include "contest/contact_log.h"

namespace tallyhut {

/// Calls that are known to take part in contests, found by any part of them.
class SuperCheck {
public:
    SuperCheck() = default;
    /// In any order, twice or not.
    explicit SuperCheck(std::vector<CallKey> calls);

    std::size_t Count() const { return calls_.size(); }
    /// Sorted, each once.
    const std::vector<CallKey>& Calls() const { return calls_; }
    /// The calls that hold the text, which has two characters at least: first those that begin with it, each of both
    /// kinds in their order, and no more than so many. Refer to this object.
    std::vector<std::string_view> Holding(std::string_view text, std::size_t most) const;

private:
    using Place = std::uint32_t;  ///< of a call among all, from 0

    std::string_view Call(Place place) const;
    void IndexPairs();
    void AddBeginning(std::string_view text, std::size_t most, std::vector<std::string_view>& found) const;
    void AddHolding(std::string_view text, std::size_t most, std::vector<std::string_view>& found) const;

    std::vector<CallKey> calls_;
    std::string text_;                   ///< of all calls, one behind the other
    std::vector<std::uint32_t> begins_;  ///< of each call in it, and its end
    std::vector<Place> withPair_;        ///< the calls that hold two characters side by side, pair by pair
    std::vector<std::uint32_t> pairs_;   ///< where those of each pair begin, and the end
};

/// Reads a list with one call a line. Lines that begin with '#' and words that are no calls are none: so is the version
/// that some lists hold as a word of its own, "VER" and a date. Throws ValueError, saying so, where no call is left.
SuperCheck ReadSuperCheck(std::string_view fileBytes);

/// The line of what is typed: the calls that hold it with a blank between, in brackets those in the log. At most 125
/// characters, whole calls; empty for a text of less than two.
std::string SuperCheckLine(const SuperCheck& calls, std::string_view typed, const ContactLog& log);

}  // namespace tallyhut
