#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

/// Two upper-case digits a byte, high digit first, no separator.
std::string BytesToHexText(std::string_view bytes);

/// Adjacent pairs of digits, in either case, to bytes. Throws ValueError on a lone digit and on anything that is no
/// digit, blanks included.
std::string HexToBytes(std::string_view text);

/// An unsigned number of up to 32 bits, in either case, without a prefix; nothing when the text is none. Leading zeros
/// do not count for the length.
std::optional<std::uint32_t> ParseHexNumber(std::string_view text);

/// The same; throws ValueError when the text is none.
std::uint32_t HexNumber(std::string_view text);

}  // namespace tallyhut
