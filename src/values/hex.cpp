#include "values/hex.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <system_error>

#include "values/value_error.h"

namespace tallyhut {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

}  // namespace

char NibbleToHex(unsigned value) {
    assert(value < kDigits.size());
    return kDigits[value];
}

std::string BytesToHexText(std::string_view bytes) {
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        text += NibbleToHex(byte / 16U);
        text += NibbleToHex(byte % 16U);
    }
    return text;
}

std::string BytesToHexDump(std::string_view bytes) {
    std::string dump;
    dump.reserve(3 * bytes.size());
    for (const char& byte : bytes) {
        dump += BytesToHexText({&byte, 1}) + ' ';
    }
    return dump;
}

std::string SpacedHexToBytes(std::string_view text) {
    constexpr std::size_t kStep = 3;
    std::string bytes;
    for (; !text.empty(); text.remove_prefix(std::min(kStep, text.size()))) {
        bytes += static_cast<char>(HexNumber(text.substr(0, 2)));
    }
    return bytes;
}

std::string HexToBytes(std::string_view text) {
    if (text.size() % 2 != 0) {
        throw ValueError('"' + std::string{text} + "\" is no row of hexadecimal pairs: a digit is left over");
    }
    std::string bytes;
    bytes.reserve(text.size() / 2);
    for (; !text.empty(); text.remove_prefix(2)) {
        bytes += static_cast<char>(HexNumber(text.substr(0, 2)));
    }
    return bytes;
}

std::optional<std::uint32_t> ParseHexNumber(std::string_view text) {
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, 16);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return number;
}

std::uint32_t HexNumber(std::string_view text) {
    const auto number = ParseHexNumber(text);
    if (!number) {
        throw ValueError('"' + std::string{text} + "\" is no hexadecimal number of 32 bits");
    }
    return *number;
}

}  // namespace tallyhut
