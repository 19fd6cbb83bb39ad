#include "contest/section_list.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>

#include "values/number.h"
#include "values/text.h"
#include "values/text_file.h"
#include "values/utf8.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::array<std::string_view, kSectionHeadings> kHeadings{"1", "2", "3", "4", "5",     "6",
                                                                   "7", "8", "9", "0", "Canada"};
constexpr std::size_t kLongestCode = 4;  // what the field of the section takes
constexpr std::size_t kLongestPrefix = 6;
constexpr std::size_t kLongestName = 60;
constexpr std::size_t kYearDigits = 4;
constexpr std::int32_t kLastDxcc = 999;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsCapitalOrDigit(char character) {
    return IsDigit(character) || (character >= 'A' && character <= 'Z');
}

bool IsControl(char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '\x7F';
}

bool IsWord(std::string_view text, std::size_t longest) {
    return !text.empty() && text.size() <= longest && std::ranges::all_of(text, IsCapitalOrDigit);
}

bool IsYear(std::string_view text) {
    return text.size() == kYearDigits && std::ranges::all_of(text, IsDigit);
}

/// Another one for each word that may be a code.
std::uint32_t NumberOfCode(std::string_view code) {
    constexpr unsigned kBitsOfCharacter = 8;
    std::uint32_t number = 0;
    for (const char character : code) {
        number = number << kBitsOfCharacter | static_cast<unsigned char>(character);
    }
    return number;
}

/// As a message shows it: what is long is no help there.
std::string Quoted(std::string_view text) {
    constexpr std::size_t kShown = 20;
    return text.size() > kShown ? '"' + std::string{text.substr(0, kShown)} + "...\"" : '"' + std::string{text} + '"';
}

/// Comments become empty lines, so that every line keeps its number.
std::string WithoutComments(std::string_view text) {
    std::string records;
    records.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of(kLineEnd), text.size());
        const std::size_t first = text.find_first_not_of(' ');
        const bool isComment = first < length && text[first] == '#';
        records += isComment ? std::string_view{} : text.substr(0, length);
        text.remove_prefix(length);
        const std::size_t ends = std::min<std::size_t>(text.starts_with(kLineEnd) ? 2 : 1, text.size());
        records += text.substr(0, ends);
        text.remove_prefix(ends);
    }
    return records;
}

/// Takes the fields of the records, each of which ends with its line, and says of what is refused where it stands.
struct RecordFields {
    FieldReader fields;
    std::size_t line = 1;  ///< of the record that is being taken

    [[noreturn]] void Refuse(const std::string& why) const { throw ValueError("line " + PlainText(line) + ": " + why); }
    std::string Next(std::string_view what) {
        if (fields.AtLineStart() || fields.AtEnd()) {
            Refuse("the " + std::string{what} + " is missing");
        }
        return fields.Take();
    }
    void EndRecord() const {
        if (!fields.AtLineStart()) {
            Refuse("more than ten fields");
        }
    }
};

struct Reader {
    RecordFields record;
    SectionList list = {};
    std::map<std::string, std::size_t> codes = {};  ///< with their lines
    std::map<std::string, std::size_t> aliases = {};
    std::map<std::string, std::size_t> prefixes = {};

    void ReadAll() {
        while (!record.fields.AtEnd()) {
            record.line = record.fields.Line();
            std::string code = record.fields.Take();
            const bool isEmptyLine = code.empty() && record.fields.AtLineStart();
            if (!isEmptyLine) {
                list.Add(TakeSection(std::move(code)));
            }
        }
        if (list.sections.empty()) {
            record.Refuse("no section stands in the list");
        }
        for (const auto& [alias, line] : aliases) {
            if (codes.contains(alias)) {
                record.line = line;
                record.Refuse("the alias " + alias + " is a code");
            }
        }
    }

private:
    ListedSection TakeSection(std::string code) {
        if (list.sections.size() == SectionList::kMostSections) {
            record.Refuse("more than " + PlainText(SectionList::kMostSections) + " sections");
        }
        ListedSection section{.code = TakeCode(std::move(code)),
                              .name = TakeName(),
                              .heading = TakeHeading(),
                              .prefixes = TakeWords("prefix", kLongestPrefix, prefixes),
                              .aliases = TakeWords("alias", kLongestCode, aliases),
                              .state = TakeState(),
                              .dxcc = TakeDxcc(),
                              .since = TakeYear("first year"),
                              .until = TakeYear("last year")};
        record.Next("notes field");
        record.EndRecord();
        return section;
    }

    std::string TakeCode(std::string code) {
        if (!IsWord(code, kLongestCode)) {
            record.Refuse(Quoted(code) + " is no code: 1 to 4 of A-Z and 0-9");
        }
        KeepOnce("code", code, codes);
        return code;
    }

    std::string TakeName() {
        std::string name = record.Next("name");
        if (Trim(name).empty() || name.size() > kLongestName || std::ranges::any_of(name, IsControl)) {
            record.Refuse(Quoted(name) + " is no name: 1 to 60 characters");
        }
        return name;
    }

    std::size_t TakeHeading() {
        const std::string text = record.Next("heading");
        const auto* const found = std::ranges::find(kHeadings, text);
        if (found == kHeadings.end()) {
            record.Refuse(Quoted(text) + " is no heading: 1 to 9, 0 or Canada");
        }
        return static_cast<std::size_t>(found - kHeadings.begin());
    }

    std::vector<std::string> TakeWords(const std::string& kind, std::size_t longest,
                                       std::map<std::string, std::size_t>& known) {
        std::vector<std::string> words = Words(record.Next(kind + " field"));
        for (const std::string& word : words) {
            if (!IsWord(word, longest)) {
                record.Refuse(Quoted(word) + " is no " + kind + ": 1 to " + PlainText(longest) + " of A-Z and 0-9");
            }
            KeepOnce(kind, word, known);
        }
        return words;
    }

    std::string TakeState() {
        std::string state = record.Next("state");
        if (!state.empty() && !IsWord(state, kLongestCode)) {
            record.Refuse(Quoted(state) + " is no state: nothing, or 1 to 4 of A-Z and 0-9");
        }
        return state;
    }

    std::int32_t TakeDxcc() {
        const std::string text = record.Next("DXCC number");
        const bool isNumber = !text.empty() && text.size() <= 3 && std::ranges::all_of(text, IsDigit);
        if (!isNumber) {
            record.Refuse(Quoted(text) + " is no DXCC number: 0 to " + PlainText(kLastDxcc));
        }
        return ToInt32(TrimmedNumber(text));
    }

    std::string TakeYear(std::string_view what) {
        std::string year = record.Next(what);
        if (!year.empty() && !IsYear(year)) {
            record.Refuse(Quoted(year) + " is no year: nothing, or four digits");
        }
        return year;
    }

    void KeepOnce(std::string_view kind, const std::string& word, std::map<std::string, std::size_t>& known) const {
        const auto [earlier, isNew] = known.emplace(word, record.line);
        if (!isNew) {
            record.Refuse("the " + std::string{kind} + " " + word + " stands in line " + PlainText(earlier->second) +
                          " already");
        }
    }
};

}  // namespace

void SectionList::Add(ListedSection section) {
    section.word = ' ' + section.code + ' ';
    places_.try_emplace(NumberOfCode(section.code), Count() + 1);
    sections.push_back(std::move(section));
}

int SectionList::Find(std::string_view code) const {
    if (!IsWord(code, kLongestCode)) {
        return 0;
    }
    const auto found = places_.find(NumberOfCode(code));
    return found == places_.end() ? 0 : found->second;
}

std::string_view SectionList::CodeOf(std::string_view typed) const {
    const auto found = std::ranges::find_if(sections, [typed](const ListedSection& section) {
        return std::ranges::find(section.aliases, typed) != section.aliases.end();
    });
    return found == sections.end() ? typed : std::string_view{found->code};
}

int SectionList::OfCall(std::string_view call) const {
    int section = 0;
    std::size_t longest = 0;
    for (int i = 1; i <= Count(); ++i) {
        for (const std::string& prefix : Section(i).prefixes) {
            if (prefix.size() > longest && call.starts_with(prefix)) {
                section = i;
                longest = prefix.size();
            }
        }
    }
    return section;
}

SectionList ReadSectionList(std::string_view fileBytes) {
    const std::string text = WithoutComments(Latin1Of(fileBytes));
    Reader reader{.record = {.fields = FieldReader{text}}};
    reader.ReadAll();
    return std::move(reader.list);
}

}  // namespace tallyhut
