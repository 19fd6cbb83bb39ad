#include "import/log_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "contest/contact_record.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kNowhere = std::string_view::npos;

constexpr std::array<std::string_view, 3> kCabrilloTags{"START-OF-LOG:", "QSO:", "X-QSO:"};
constexpr std::array<std::string_view, 2> kAdifEnds{"<EOR>", "<EOH>"};

/// @param highAt  which byte of a pair is the high one
std::string FromUtf16(std::string_view pairs, std::size_t highAt) {
    std::string text;
    text.reserve(pairs.size() / 2);
    for (std::size_t at = 0; at + 1 < pairs.size(); at += 2) {
        text += pairs[at + highAt] == '\0' ? pairs[at + 1 - highAt] : '?';
    }
    return text;
}

template <std::size_t Count>
bool BeginsWithOneOf(std::string_view text, const std::array<std::string_view, Count>& beginnings) {
    return std::ranges::any_of(beginnings, [text](std::string_view one) { return BeginsWith(text, one); });
}

/// Where the first line of Cabrillo begins.
std::size_t CabrilloAt(std::string_view text) {
    TextLines lines{text};
    while (!lines.AtEnd()) {
        const std::size_t at = text.size() - lines.rest.size();
        if (BeginsWithOneOf(Stripped(lines.Take()), kCabrilloTags)) {
            return at;
        }
    }
    return kNowhere;
}

/// Where the first end of a head or a record stands.
std::size_t AdifAt(std::string_view text) {
    for (std::size_t at = text.find('<'); at != kNowhere; at = text.find('<', at + 1)) {
        if (BeginsWithOneOf(text.substr(at), kAdifEnds)) {
            return at;
        }
    }
    return kNowhere;
}

/// Whether the first line that is not empty is one whole record.
bool BeginsWithRecord(std::string_view text) {
    TextLines lines{text};
    std::string_view first;
    while (first.empty() && !lines.AtEnd()) {
        first = Stripped(lines.Take());
    }
    FieldReader fields{first};
    try {
        ReadRecord(fields);
        return fields.AtEnd();
    } catch (const ValueError&) {
        return false;
    }
}

}  // namespace

std::string WithoutMark(std::string fileBytes) {
    const std::string_view bytes = fileBytes;
    if (bytes.starts_with(kLittleEndianMark)) {
        return FromUtf16(bytes.substr(kLittleEndianMark.size()), 1);
    }
    if (bytes.starts_with(kBigEndianMark)) {
        return FromUtf16(bytes.substr(kBigEndianMark.size()), 0);
    }
    if (bytes.starts_with(kUtf8Mark)) {
        fileBytes.erase(0, kUtf8Mark.size());
    }
    return fileBytes;
}

LogFormat FormatOf(std::string_view text) {
    const std::size_t cabrillo = CabrilloAt(text);
    const std::size_t adif = AdifAt(text);
    if (cabrillo != adif) {
        return cabrillo < adif ? LogFormat::Cabrillo : LogFormat::Adif;
    }
    return BeginsWithRecord(text) ? LogFormat::Records : LogFormat::None;
}

std::string_view TextLines::Take() {
    ++number;
    const std::string_view line = rest.substr(0, rest.find_first_of(kLineEnd));
    rest.remove_prefix(line.size());
    rest.remove_prefix(rest.starts_with(kLineEnd) ? 2 : std::min<std::size_t>(rest.size(), 1));
    return line;
}

std::string_view Stripped(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);  // nothing found: npos + 1 is 0
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return text.size() >= beginning.size() &&
           std::ranges::equal(text.substr(0, beginning.size()), beginning, {}, upper);
}

}  // namespace tallyhut
