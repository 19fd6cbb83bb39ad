#include "reports/entry_head.h"

#include <algorithm>
#include <array>
#include <set>

#include "reports/report_text.h"
#include "values/text.h"

namespace tallyhut {
namespace {

/// The values that Cabrillo 3 lists for a tag, with blanks between them.
struct ListedValues {
    std::string_view tag;
    std::string_view values;
};

constexpr std::array kListedValues{
    ListedValues{"START-OF-LOG", "3.0"},
    ListedValues{"CONTEST", "ARRL-SS-CW ARRL-SS-SSB"},
    ListedValues{"CATEGORY-ASSISTED", "ASSISTED NON-ASSISTED"},
    ListedValues{"CATEGORY-BAND",
                 "ALL 160M 80M 40M 20M 15M 10M 6M 4M 2M 222 432 902 1.2G 2.3G 3.4G 5.7G 10G 24G 47G 75G 122G 134G "
                 "241G LIGHT VHF-3-BAND VHF-FM-ONLY"},
    ListedValues{"CATEGORY-MODE", "CW SSB RTTY FM DIGI MIXED"},
    ListedValues{"CATEGORY-OPERATOR", "SINGLE-OP MULTI-OP CHECKLOG"},
    ListedValues{"CATEGORY-OVERLAY", "CLASSIC ROOKIE TB-WIRES YOUTH NOVICE-TECH OVER-50"},
    ListedValues{"CATEGORY-POWER", "HIGH LOW QRP"},
    ListedValues{"CATEGORY-STATION",
                 "FIXED MOBILE PORTABLE ROVER ROVER-LIMITED ROVER-UNLIMITED EXPEDITION HQ SCHOOL EXPLORER DISTRIBUTED"},
    ListedValues{"CATEGORY-TIME", "6-HOURS 8-HOURS 12-HOURS 24-HOURS"},
    ListedValues{"CATEGORY-TRANSMITTER", "ONE TWO LIMITED UNLIMITED SWL"},
    ListedValues{"CERTIFICATE", "YES NO"},
};

constexpr std::string_view kLineEnds = "\r\n";

/// The next line of the text, which loses it. Empty ones may come between.
std::string_view TakeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find_first_of(kLineEnds));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

bool IsAContact(std::string_view tag) {
    return tag == "QSO" || tag == "X-QSO";
}

}  // namespace

std::vector<HeadLine> ReadEntryHead(std::string_view file) {
    std::vector<HeadLine> head;
    std::set<std::string> seen;
    while (!file.empty()) {
        const std::string_view line = TakeLine(file);
        const std::size_t colon = line.find(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        std::string tag = UpperCase(Trim(line.substr(0, colon)));
        if (IsAContact(tag) || tag == "END-OF-LOG") {
            break;
        }
        if (seen.insert(tag).second) {
            head.push_back({std::move(tag), Trim(line.substr(colon + 1))});
        }
    }
    return head;
}

std::optional<std::string> ObjectionTo(const HeadLine& line, const SectionList& sections) {
    const std::string value = UpperCase(line.value);
    if (line.tag == "ARRL-SECTION") {
        return "Cabrillo 3 has LOCATION instead";
    }
    if (line.tag == "LOCATION") {
        return sections.Find(value) != 0 ? std::nullopt : std::optional{Quoted(line.value) + " is no section"};
    }
    const auto* const listed = std::ranges::find(kListedValues, line.tag, &ListedValues::tag);
    if (listed == kListedValues.end()) {
        return std::nullopt;
    }
    const std::vector<std::string> values = Words(listed->values);
    const bool isListed = std::ranges::find(values, value) != values.end();
    return isListed ? std::nullopt : std::optional{Quoted(line.value) + " is in no list of Cabrillo 3"};
}

}  // namespace tallyhut
