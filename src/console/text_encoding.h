#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// 8-bit text of the program as UTF-8. A text that is valid UTF-8 with characters beyond ASCII is one already: a path.
std::string ToUtf8(std::string_view text);

/// UTF-8 as 8-bit text; what is beyond Latin-1 is dropped.
std::string FromUtf8(std::string_view utf8);

}  // namespace tallyhut
