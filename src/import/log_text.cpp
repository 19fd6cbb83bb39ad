#include "import/log_text.h"

#include <algorithm>
#include <array>

#include "contest/contact_record.h"
#include "values/text_lines.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

constexpr std::array<std::string_view, 3> kCabrilloTags{"START-OF-LOG:", "QSO:", "X-QSO:"};
constexpr std::array<std::string_view, 2> kAdifEnds{"EOR", "EOH"};

template <std::size_t Count>
bool BeginsWithOneOf(std::string_view text, const std::array<std::string_view, Count>& beginnings) {
    return std::ranges::any_of(beginnings, [text](std::string_view one) { return BeginsWith(text, one); });
}

/// Where the first line of Cabrillo begins.
std::size_t CabrilloAt(std::string_view text) {
    TextLines lines{text};
    while (!lines.AtEnd()) {
        const std::size_t at = lines.At();
        if (BeginsWithOneOf(lines.Take(), kCabrilloTags)) {
            return at;
        }
    }
    return kNowhere;
}

/// Where the first end of a head or a record stands.
std::size_t AdifAt(std::string_view text) {
    for (std::size_t at = text.find('<'); at != kNowhere; at = text.find('<', at + 1)) {
        const std::string_view there = text.substr(at);
        if (std::ranges::any_of(kAdifEnds, [there](std::string_view name) { return LengthOfEnd(there, name) != 0; })) {
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
        first = lines.Take();
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

LogFormat FormatOf(std::string_view text) {
    const std::size_t cabrillo = CabrilloAt(text);
    const std::size_t adif = AdifAt(text);
    if (cabrillo != adif) {
        return cabrillo < adif ? LogFormat::Cabrillo : LogFormat::Adif;
    }
    return BeginsWithRecord(text) ? LogFormat::Records : LogFormat::None;
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
    const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return text.size() >= beginning.size() &&
           std::ranges::equal(text.substr(0, beginning.size()), beginning, {}, upper);
}

std::size_t LengthOfEnd(std::string_view text, std::string_view name) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t nameAt = text.starts_with('<') ? text.find_first_not_of(kBlanks, 1) : kNowhere;
    if (nameAt == kNowhere || !BeginsWith(text.substr(nameAt), name)) {
        return 0;
    }
    const std::size_t close = text.find_first_not_of(kBlanks, nameAt + name.size());
    return close != kNowhere && text[close] == '>' ? close + 1 : 0;
}

}  // namespace tallyhut
