#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

/// A call as a number: hundreds of thousands of them take little room and are compared at once. Keys have the order of
/// the calls' texts.
using CallKey = std::uint64_t;

/// What the field of the call takes.
inline constexpr std::size_t kLongestCall = 12;

/// Nothing for what is no call in this sense: empty, longer than kLongestCall, a character that is no capital, digit or
/// "/".
std::optional<CallKey> KeyOfCall(std::string_view call);

/// The call of a key that KeyOfCall has given.
std::string CallOfKey(CallKey key);

}  // namespace tallyhut
