#include "contest/known_calls.h"

#include <algorithm>
#include <array>
#include <bit>

#include "contest/call_digits.h"

namespace tallyhut {
namespace {

constexpr std::size_t kFilterBitsForCall = 8;
constexpr std::size_t kWordBits = 64;

/// Calls have most of their digits in common: each bit of the result depends on all of the key.
std::uint64_t Mixed(CallKey call) {
    constexpr std::uint64_t kFirst = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t kSecond = 0xBF58476D1CE4E5B9;
    std::uint64_t mixed = call * kFirst;
    mixed ^= mixed >> 32U;
    return mixed * kSecond;
}

/// Two bits of one word.
std::uint64_t FilterBits(std::uint64_t mixed) {
    return std::uint64_t{1} << (mixed >> 58U) | std::uint64_t{1} << (mixed >> 52U & (kWordBits - 1));
}

std::size_t FilterWord(std::uint64_t mixed, std::size_t words) {
    return mixed >> 20U & (words - 1);
}

/// Walks the calls that differ from one by a character. Every step asks `isKnown` and ends the walk with the first key
/// of which that is true.
struct Neighbours {
    CallKey key = 0;
    std::array<CallKey, kLongestKeyedCall> digits = {};
    std::size_t length = 0;

    explicit Neighbours(std::string_view call) {
        for (; length < call.size(); ++length) {
            digits.at(length) = DigitOf(call[length]);
            key += digits.at(length) * kCallWeights.at(length);
        }
    }

    template <typename IsKnown>
    std::optional<CallKey> Find(const IsKnown& isKnown) const {
        std::optional<CallKey> found;
        const auto known = [&](CallKey call) {
            found = isKnown(call) ? std::optional{call} : std::nullopt;
            return found.has_value();
        };
        return Replaced(known) || Swapped(known) || PutIn(known) || LeftOut(known) ? found : std::nullopt;
    }

private:
    /// Each character in turn at a place that holds none.
    template <typename Known>
    static bool AnyAt(std::size_t place, CallKey without, CallKey present, const Known& known) {
        for (CallKey digit = 1; digit < kCallBase; ++digit) {
            if (digit != present && known(without + digit * kCallWeights.at(place))) {
                return true;
            }
        }
        return false;
    }

    template <typename Known>
    bool Replaced(const Known& known) const {
        for (std::size_t i = 0; i < length; ++i) {
            if (AnyAt(i, key - digits.at(i) * kCallWeights.at(i), digits.at(i), known)) {
                return true;
            }
        }
        return false;
    }

    template <typename Known>
    bool Swapped(const Known& known) const {
        for (std::size_t i = 1; i < length; ++i) {
            const CallKey more = digits.at(i) - digits.at(i - 1);  // of the left one; may wrap, and so does the sum
            if (more != 0 && known(key + more * (kCallWeights.at(i - 1) - kCallWeights.at(i)))) {
                return true;
            }
        }
        return false;
    }

    template <typename Known>
    bool PutIn(const Known& known) const {
        CallKey before = 0;
        for (std::size_t i = 0; i <= length && length < kLongestKeyedCall; ++i) {
            const CallKey behind = key - before;
            if (AnyAt(i, before + behind / kCallBase, 0, known)) {
                return true;
            }
            before += digits.at(i) * kCallWeights.at(i);
        }
        return false;
    }

    template <typename Known>
    bool LeftOut(const Known& known) const {
        CallKey before = 0;
        for (std::size_t i = 0; i < length && length > 1; ++i) {
            const CallKey here = digits.at(i) * kCallWeights.at(i);
            const CallKey behind = key - before - here;
            if (known(before + behind * kCallBase)) {
                return true;
            }
            before += here;
        }
        return false;
    }
};

}  // namespace

KnownCalls::KnownCalls(std::vector<CallKey> calls) : calls_{std::move(calls)} {
    if (!std::ranges::is_sorted(calls_)) {
        std::ranges::sort(calls_);
    }
    filter_.resize(std::bit_ceil(calls_.size() * kFilterBitsForCall / kWordBits + 1));
    for (const CallKey call : calls_) {
        const std::uint64_t mixed = Mixed(call);
        filter_[FilterWord(mixed, filter_.size())] |= FilterBits(mixed);
    }
}

bool KnownCalls::MayHold(CallKey call) const {
    const std::uint64_t mixed = Mixed(call);
    const std::uint64_t bits = FilterBits(mixed);
    return (filter_[FilterWord(mixed, filter_.size())] & bits) == bits;
}

bool KnownCalls::Holds(CallKey call) const {
    return MayHold(call) && std::ranges::binary_search(calls_, call);
}

bool KnownCalls::Knows(std::string_view call) const {
    const std::optional<CallKey> key = KeyOfCall(call);
    return key && Holds(*key);
}

std::optional<std::string> KnownCalls::OneLetterAway(std::string_view call) const {
    const std::optional<CallKey> key = KeyOfCall(call);
    if (!key || Holds(*key)) {
        return std::nullopt;
    }
    const std::optional<CallKey> found = Neighbours{call}.Find([this](CallKey other) { return Holds(other); });
    return found ? std::optional{CallOfKey(*found)} : std::nullopt;
}

}  // namespace tallyhut
