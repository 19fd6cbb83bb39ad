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
inline constexpr std::size_t kLongestKeyedCall = 12;

/// Nothing for what has no key: empty, longer than kLongestKeyedCall, a character that is no capital, digit or
/// "/".
std::optional<CallKey> KeyOfCall(std::string_view call);

/// The key of a call as files list it: in either case, blanks and tabs around it. Nothing for a word without a digit or
/// without a letter, which is no call.
std::optional<CallKey> KeyOfListedCall(std::string_view word);

/// The call of a key that KeyOfCall has given.
std::string CallOfKey(CallKey key);

}  // namespace tallyhut
