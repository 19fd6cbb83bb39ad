#include "console/text_encoding.h"

#include <array>
#include <cstdint>

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::uint32_t kNoCharacter = 0xFFFFFFFF;
constexpr std::uint32_t kLastLatin1 = 0xFF;

unsigned char ByteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

/// How many bytes the character that begins with this one has; 0 where none begins with it.
std::size_t LengthFrom(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// Takes one character off the front; kNoCharacter, and one byte, where there is none.
std::uint32_t TakeCharacter(std::string_view& text) {
    const unsigned char lead = ByteAt(text, 0);
    const std::size_t length = LengthFrom(lead);
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return kNoCharacter;
    }
    constexpr std::array<std::uint32_t, 5> kLeadBits{0, 0x7F, 0x1F, 0x0F, 0x07};
    std::uint32_t character = lead & kLeadBits.at(length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((ByteAt(text, i) & 0xC0) != 0x80) {
            text.remove_prefix(1);
            return kNoCharacter;
        }
        character = character << 6 | (ByteAt(text, i) & 0x3FU);
    }
    text.remove_prefix(length);
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character < 0xE000;
    return overlong || surrogate || character > 0x10FFFF ? kNoCharacter : character;
}

bool IsUtf8BeyondAscii(std::string_view text) {
    bool beyond = false;
    while (!text.empty()) {
        const std::uint32_t character = TakeCharacter(text);
        if (character == kNoCharacter) {
            return false;
        }
        beyond = beyond || character > 0x7F;
    }
    return beyond;
}

}  // namespace

std::string ToUtf8(std::string_view text) {
    return IsUtf8BeyondAscii(text) ? std::string{text} : Latin1ToUtf8(text);
}

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        const std::uint32_t character = TakeCharacter(utf8);
        if (character <= kLastLatin1) {
            text += static_cast<char>(character);
        }
    }
    return text;
}

}  // namespace tallyhut
