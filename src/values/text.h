#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

// Text is bytes, one a character. A blank is the character 32 and nothing else: a tab is no blank.

/// What ends a line in files and in the texts of boxes.
inline constexpr std::string_view kLineEnd = "\r\n";

/// Without the blanks at both ends.
std::string Trim(std::string_view text);

/// Without the blanks behind the text.
std::string TrimEnd(std::string_view text);

/// The letters a to z as A to Z. Every other byte stays, also the accented letters: calls and sections have none.
std::string UpperCase(std::string_view text);

/// What stands between the blanks, in its order.
std::vector<std::string> Words(std::string_view text);

/// Blanks behind the text up to the width; a longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);

/// Each byte as the Latin-1 character that it is, in UTF-8.
std::string Latin1ToUtf8(std::string_view text);

}  // namespace tallyhut
