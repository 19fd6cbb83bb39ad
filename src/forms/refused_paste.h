#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// All characters but these, for a field into which nothing may be pasted that cannot be typed there.
inline std::string EverythingBut(std::string_view accepted) {
    std::string refused;
    for (int code = 0; code <= 0xFF; ++code) {
        const char character = static_cast<char>(code);
        if (accepted.find(character) == std::string_view::npos) {
            refused += character;
        }
    }
    return refused;
}

}  // namespace tallyhut
