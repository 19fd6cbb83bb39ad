#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// 8-bit text of the program as UTF-8. A text that is valid UTF-8 with characters beyond ASCII is one already: a path.
std::string ToUtf8(std::string_view text);

}  // namespace tallyhut
