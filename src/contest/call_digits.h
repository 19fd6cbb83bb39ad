#pragma once

#include <array>

#include "contest/call_key.h"

namespace tallyhut {

/// The characters of a call in the order of their codes. In a key the first is the digit 1, and 0 is what stands behind
/// a call's end.
inline constexpr std::string_view kCallCharacters = "/0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
inline constexpr CallKey kCallBase = kCallCharacters.size() + 1;

/// What a digit counts in a key, the call's first character first.
inline constexpr std::array<CallKey, kLongestKeyedCall> kCallWeights = [] {
    std::array<CallKey, kLongestKeyedCall> weights{};
    CallKey weight = 1;
    for (std::size_t i = kLongestKeyedCall; i-- > 0; weight *= kCallBase) {
        weights.at(i) = weight;
    }
    return weights;
}();
static_assert(kCallWeights.front() <= ~CallKey{0} / kCallBase, "the longest call has a key");

/// 0 for a character that no call has.
constexpr CallKey DigitOf(char character) {
    if (character >= '/' && character <= '9') {
        return static_cast<CallKey>(character - '/') + 1;
    }
    return character >= 'A' && character <= 'Z' ? static_cast<CallKey>(character - 'A') + 12 : 0;
}

}  // namespace tallyhut
