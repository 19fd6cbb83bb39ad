#include "console/text_encoding.h"

namespace tallyhut {

std::string ToUtf8(std::string_view text) {
    return IsUtf8BeyondAscii(text) ? std::string{text} : Latin1ToUtf8(text);
}

std::string Latin1ToUtf8(std::string_view text) {
    std::string utf8;
    for (const char byte : text) {
        const auto character = static_cast<unsigned char>(byte);
        if (character < 0x80) {
            utf8 += byte;
        } else {
            utf8 += static_cast<char>(0xC0 | character >> 6);
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return utf8;
}

}  // namespace tallyhut
