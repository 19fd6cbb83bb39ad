#include "values/text.h"

#include <algorithm>

namespace tallyhut {

std::string Trim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return TrimEnd(text);
}

std::string TrimEnd(std::string_view text) {
    return std::string{text.substr(0, text.find_last_not_of(' ') + 1)};  // nothing found: npos + 1 is 0
}

std::string UpperCase(std::string_view text) {
    std::string upper{text};
    for (char& character : upper) {
        if (character >= 'a' && character <= 'z') {
            character = static_cast<char>(character - 'a' + 'A');
        }
    }
    return upper;
}

std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    for (std::size_t begin = text.find_first_not_of(' '); begin < text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        words.emplace_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(' ', end);
    }
    return words;
}

std::string PadRight(std::string_view text, std::size_t width) {
    std::string padded{text};
    padded.resize(std::max(width, padded.size()), ' ');
    return padded;
}

std::string Latin1ToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(2 * text.size());
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
