#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// True for text that is valid UTF-8 with at least one character beyond ASCII.
bool IsUtf8BeyondAscii(std::string_view text);

/// UTF-8 as 8-bit text; each character beyond Latin-1, and each byte that is of none, becomes the other text.
std::string FromUtf8(std::string_view utf8, std::string_view forOthers = "");

/// The text of a file that may come from any editor: UTF-8, with or without a mark at its beginning, as Latin-1, with
/// '?' for what does not fit there; any other text as it stands.
std::string Latin1Of(std::string_view fileBytes);

/// The text of a file that is plain ASCII where it matters: without the mark at its beginning, and UTF-16 with a mark
/// as 8-bit text, with '?' for what does not fit there. All other bytes stay as they are. May refer to `room`, which
/// then holds the text.
std::string_view PlainBytesOf(std::string_view fileBytes, std::string& room);

}  // namespace tallyhut
