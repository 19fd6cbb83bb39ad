#include "values/utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyhut {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
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

std::string_view WithoutMark(std::string_view fileBytes) {
    return fileBytes.starts_with(kByteOrderMark) ? fileBytes.substr(kByteOrderMark.size()) : fileBytes;
}

/// An odd byte at the end is none.
std::string FromUtf16(std::string_view units, bool bigEndian) {
    std::string text;
    text.reserve(units.size() / 2);
    for (std::size_t at = 0; at + 1 < units.size(); at += 2) {
        const char high = units[bigEndian ? at : at + 1];
        const char low = units[bigEndian ? at + 1 : at];
        text += high == 0 ? low : '?';
    }
    return text;
}

}  // namespace

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

std::string FromUtf8(std::string_view utf8, std::string_view forOthers) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::uint32_t character = TakeCharacter(utf8);
        if (character <= kLastLatin1) {
            text += static_cast<char>(character);
        } else {
            text += forOthers;
        }
    }
    return text;
}

std::string Latin1Of(std::string_view fileBytes) {
    fileBytes = WithoutMark(fileBytes);
    return IsUtf8BeyondAscii(fileBytes) ? FromUtf8(fileBytes, "?") : std::string{fileBytes};
}

std::string_view PlainBytesOf(std::string_view fileBytes, std::string& room) {
    const bool littleEndian = fileBytes.starts_with("\xFF\xFE");
    if (!littleEndian && !fileBytes.starts_with("\xFE\xFF")) {
        return WithoutMark(fileBytes);
    }
    room = FromUtf16(fileBytes.substr(2), !littleEndian);
    return room;
}

}  // namespace tallyhut
