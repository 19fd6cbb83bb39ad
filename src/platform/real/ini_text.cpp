#include "platform/real/ini_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace tallyhut {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBytes = "@ByteArray(";
constexpr std::string_view kText = "@String(";  // stands before a text with a character 0
constexpr std::string_view kNothing = "@Invalid()";
constexpr std::string_view kBlanks = " \t";

/// What stands behind '\' for a character. Reading takes them all, writing the first that fits.
constexpr std::array<std::pair<char, char>, 11> kEscapes{{{'a', '\a'},
                                                          {'b', '\b'},
                                                          {'f', '\f'},
                                                          {'n', '\n'},
                                                          {'r', '\r'},
                                                          {'t', '\t'},
                                                          {'v', '\v'},
                                                          {'"', '"'},
                                                          {'\\', '\\'},
                                                          {'?', '?'},
                                                          {'\'', '\''}}};
constexpr std::size_t kWrittenEscapes = 9;

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

/// 0 to 15; 16 for no digit.
unsigned HexDigit(char character) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const char lower = character >= 'A' && character <= 'F' ? static_cast<char>(character - 'A' + 'a') : character;
    return static_cast<unsigned>(std::min(kDigits.find(lower), kDigits.size()));
}

std::string HexText(unsigned char byte, std::string_view digits) {
    std::string text;
    if (byte >= 16) {
        text += digits[byte / 16];
    }
    return text + digits[byte % 16];
}

void AppendUtf8(std::string& text, std::uint32_t character) {
    const auto follow = [](std::uint32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += follow(character);
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += follow(character >> 6);
        text += follow(character);
    }
}

/// How many bytes the UTF-8 character at the front has; 0 where none stands there.
std::size_t Utf8Length(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (length == 0 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) {
            return 0;
        }
    }
    const unsigned second = byte(1);
    const bool longerThanNeeded = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool noCharacter = (first == 0xED && second >= 0xA0) || (first == 0xF4 && second >= 0x90);
    return longerThanNeeded || noCharacter ? 0 : length;
}

bool IsUtf8(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) {
        return false;  // readers would drop it
    }
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

/// One byte for each character up to 255. A byte that is no UTF-8 stays.
std::string Latin1(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const bool isPair = Utf8Length(text) == 2 && static_cast<unsigned char>(text[0]) < 0xC4;
        const char low = isPair ? static_cast<char>(text[1] & 0x3F) : char{0};
        bytes += isPair ? static_cast<char>((static_cast<unsigned char>(text[0]) << 6) | low) : text[0];
        text.remove_prefix(isPair ? 2 : 1);
    }
    return bytes;
}

std::string EscapedName(std::string_view name) {
    std::string escaped;
    for (const char character : name) {
        const bool plain = (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
                           (character >= 'a' && character <= 'z') || character == '_' || character == '-' ||
                           character == '.';
        if (plain) {
            escaped += character;
        } else if (character == '/') {
            escaped += '\\';
        } else {
            const auto byte = static_cast<unsigned char>(character);
            escaped += byte < 16 ? "%0" : "%";
            escaped += HexText(byte, "0123456789ABCDEF");
        }
    }
    return escaped;
}

std::string UnescapedName(std::string_view name) {
    std::string plain;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isCode =
            name[i] == '%' && i + 2 < name.size() && HexDigit(name[i + 1]) < 16 && HexDigit(name[i + 2]) < 16;
        if (isCode) {
            plain += static_cast<char>(HexDigit(name[i + 1]) * 16 + HexDigit(name[i + 2]));
            i += 2;
        } else {
            plain += name[i] == '\\' ? '/' : name[i];
        }
    }
    return plain;
}

/// The number behind "\x" or "\", with every digit that follows, as one character.
void TakeCode(std::string_view text, std::size_t& i, unsigned base, std::string& plain) {
    std::uint32_t code = 0;
    for (; i < text.size() && HexDigit(text[i]) < base; ++i) {
        code = (code * base + HexDigit(text[i])) & 0xFFFF;
    }
    AppendUtf8(plain, code);
}

/// What stands behind a '\' at i; i is then behind it. A letter that means nothing is left out with its '\'.
void TakeEscape(std::string_view text, std::size_t& i, std::string& plain) {
    if (i == text.size()) {
        return;
    }
    const char letter = text[i];
    if (letter >= '0' && letter <= '7') {
        TakeCode(text, i, 8, plain);
        return;
    }
    ++i;
    if (letter == 'x') {
        if (i < text.size() && HexDigit(text[i]) < 16) {
            TakeCode(text, i, 16, plain);
        }
        return;
    }
    const auto* const row = std::ranges::find(kEscapes, letter, &std::pair<char, char>::first);
    if (row != kEscapes.end()) {
        plain += row->second;
    }
}

/// The text without quotes, escapes and a comment. Where somebody left out the quotes around a comma it is a list,
/// which reads "one, two".
std::string WithoutQuotes(std::string_view text) {
    std::string all;
    std::string item;
    bool inQuotes = false;
    bool wasQuoted = false;
    std::size_t kept = 0;  // blanks before this length belong to the item
    const auto endItem = [&] {
        while (!wasQuoted && item.size() > kept && kBlanks.find(item.back()) != std::string_view::npos) {
            item.pop_back();
        }
        all += std::exchange(item, "");
        wasQuoted = false;
        kept = 0;
    };
    std::size_t i = 0;
    const auto skipBlanks = [&] { i = std::min(text.find_first_not_of(kBlanks, i), text.size()); };
    skipBlanks();
    while (i < text.size() && (inQuotes || text[i] != ';')) {
        const char character = text[i++];
        if (character == '\\') {
            TakeEscape(text, i, item);
            kept = item.size();
        } else if (character == '"') {
            inQuotes = !inQuotes;
            wasQuoted = true;
            if (!inQuotes) {
                skipBlanks();
            }
        } else if (character == ',' && !inQuotes) {
            endItem();
            all += ", ";
            skipBlanks();
        } else {
            item += character;
        }
    }
    endItem();
    return all;
}

std::string Value(std::string_view text) {
    std::string plain = WithoutQuotes(text);
    if (plain.starts_with("@@")) {
        return plain.substr(1);
    }
    if (plain == kNothing) {
        return "";
    }
    if (plain.starts_with(kBytes) && plain.ends_with(')')) {
        return Latin1(plain.substr(kBytes.size(), plain.size() - kBytes.size() - 1));
    }
    if (plain.starts_with(kText) && plain.ends_with(')')) {
        return plain.substr(kText.size(), plain.size() - kText.size() - 1);
    }
    return plain;
}

/// With '\' and quotes where they are needed. Of bytes, those beyond ASCII as numbers.
std::string Quoted(std::string_view text, bool areBytes) {
    std::string quoted;
    bool wasNumber = false;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        const auto* const end = kEscapes.begin() + kWrittenEscapes;
        const auto* const row =
            std::find_if(kEscapes.begin(), end, [&](const auto& escape) { return escape.second == character; });
        const bool asNumber = byte < 0x20 || (areBytes && byte >= 0x7F) || (wasNumber && HexDigit(character) < 16);
        wasNumber = row == end && asNumber;
        if (row != end) {
            quoted += {'\\', row->first};
        } else if (asNumber) {
            quoted += byte == 0 ? "\\0" : "\\x" + HexText(byte, "0123456789abcdef");
        } else {
            quoted += character;
        }
    }
    const bool needsQuotes =
        text.find_first_of(";,=") != std::string_view::npos || quoted.starts_with(' ') || quoted.ends_with(' ');
    return needsQuotes ? '"' + quoted + '"' : quoted;
}

std::string ValueText(std::string_view value) {
    const std::string text{value};
    if (!IsUtf8(value)) {
        return Quoted(std::string{kBytes} + text + ')', true);
    }
    if (value.find('\0') != std::string_view::npos) {
        return Quoted(std::string{kText} + text + ')', false);
    }
    return Quoted(value.starts_with('@') ? '@' + text : text, false);
}

struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;   // of what is written in it
    std::size_t next = 0;  // behind its line end
};

Line LineAt(std::string_view file, std::size_t begin) {
    const std::size_t end = std::min(file.find_first_of("\r\n", begin), file.size());
    std::size_t next = std::min(end + 1, file.size());
    if (file.substr(end).starts_with("\r\n")) {
        ++next;
    }
    return {.begin = begin, .end = end, .next = next};
}

/// Where a key stands, or could.
struct Place {
    std::optional<Line> line;               // the last one that has the key
    std::size_t value = 0;                  // in that line
    std::optional<std::size_t> sectionEnd;  // behind the last line of the section with anything in it
};

Place Find(std::string_view file, std::string_view section, std::string_view key) {
    Place place;
    bool inSection = false;
    for (Line line{.next = file.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0}; line.next < file.size();) {
        line = LineAt(file, line.next);
        const std::string_view text = Trimmed(file.substr(line.begin, line.end - line.begin));
        if (text.starts_with('[')) {
            inSection = UnescapedName(Trimmed(text.substr(1, text.find(']') - 1))) == section;
        }
        if (!inSection || text.empty()) {
            continue;
        }
        place.sectionEnd = line.next;
        const std::size_t equals = file.substr(0, line.end).find('=', line.begin);
        const bool isKey = !text.starts_with('[') && !text.starts_with(';') && equals != std::string_view::npos &&
                           UnescapedName(Trimmed(file.substr(line.begin, equals - line.begin))) == key;
        if (isKey) {
            place.line = line;
            place.value = equals + 1;
        }
    }
    return place;
}

}  // namespace

std::optional<std::string> IniValue(std::string_view file, std::string_view section, std::string_view key) {
    const Place place = Find(file, section, key);
    return place.line ? std::optional(Value(file.substr(place.value, place.line->end - place.value))) : std::nullopt;
}

std::string WithIniValue(std::string_view file, std::string_view section, std::string_view key,
                         std::string_view value) {
    const Place place = Find(file, section, key);
    const std::string lineEnd = file.find("\r\n") != std::string_view::npos ? "\r\n" : "\n";
    const std::string setting = EscapedName(key) + '=' + ValueText(value);
    std::string text{file};
    if (place.line) {
        return text.replace(place.line->begin, place.line->end - place.line->begin, setting);
    }
    const std::size_t at = place.sectionEnd.value_or(text.size());
    const bool behindUnendedLine = at > 0 && text[at - 1] != '\n' && text[at - 1] != '\r';
    std::string added = behindUnendedLine ? lineEnd : "";
    if (!place.sectionEnd) {
        added += text.empty() ? "" : lineEnd;
        added += '[' + EscapedName(section) + ']' + lineEnd;
    }
    return text.insert(at, added + setting + lineEnd);
}

}  // namespace tallyhut
