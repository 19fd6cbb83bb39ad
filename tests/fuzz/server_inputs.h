#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to the dialects of servers of radios as what came to each request, whatever was known before. No
/// answer may crash them, grow, give a reading that was not asked for or cannot be shown, or bring anything but a plain
/// name into a command; false otherwise.
bool TakesServerInput(std::string_view bytes);

}  // namespace tallyhut
