#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

/// The digit of a value from 0 to 15, letters in upper case.
char NibbleToHex(unsigned value);

/// Two upper-case digits a byte, high digit first, no separator.
std::string BytesToHexText(std::string_view bytes);

/// Adjacent pairs of digits, in either case, to bytes. Throws ValueError on a lone digit and on anything that is no
/// digit, blanks included.
std::string HexToBytes(std::string_view text);

/// The digit pairs with one blank behind each, for display: "FE 03 ".
std::string BytesToHexDump(std::string_view bytes);

/// A text of pairs with one character between them, "FE FE 64 E0 03 FD", to bytes: every third character begins a pair,
/// whatever stands between. The last pair may be a lone digit. Throws ValueError on a pair that is no hexadecimal
/// number.
std::string SpacedHexToBytes(std::string_view text);

/// An unsigned number of up to 32 bits, in either case, without a prefix; nothing when the text is none. Leading zeros
/// do not count for the length.
std::optional<std::uint32_t> ParseHexNumber(std::string_view text);

/// The same; throws ValueError when the text is none.
std::uint32_t HexNumber(std::string_view text);

}  // namespace tallyhut
