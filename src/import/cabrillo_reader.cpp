#include "import/cabrillo_reader.h"

#include <algorithm>
#include <array>

#include "import/contact_fields.h"
#include "import/log_text.h"
#include "import/station_fields.h"
#include "values/text.h"
#include "values/text_lines.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestLine = 1000;  // beyond any that a program writes
constexpr std::string_view kBlanks = " \t";

/// The words of a contact behind its tag; a number of the transmitter may follow.
enum QsoWord : std::size_t {
    kFrequency,
    kMode,
    kDate,
    kTime,
    kOwnCall,
    kSent,
    kOwnPrecedence,
    kOwnCheck,
    kOwnSection,
    kCall,
    kReceived,
    kPrecedence,
    kCheck,
    kSection,
    kQsoWords,
};

/// One more than a line may have, so that a longer one shows.
using QsoWords = std::array<std::string_view, kQsoWords + 2>;

/// What is said of a station in the head. Several tags say the same; the first that does counts.
struct StationTag {
    std::string_view tag;
    void (StationFields::*take)(std::string_view, std::size_t);
};

constexpr std::array kStationTags{
    StationTag{"CALLSIGN", &StationFields::TakeCall},
    StationTag{"LOCATION", &StationFields::TakeSection},
    StationTag{"ARRL-SECTION", &StationFields::TakeSection},
    StationTag{"CONTEST", &StationFields::TakeContest},
};

/// Tags of all versions of the format that say nothing that a log holds.
constexpr std::array<std::string_view, 37> kOtherTags{
    "START-OF-LOG",
    "END-OF-LOG",
    "CREATED-BY",
    "CATEGORY",
    "CATEGORY-ASSISTED",
    "CATEGORY-BAND",
    "CATEGORY-DXPEDITION",
    "CATEGORY-MODE",
    "CATEGORY-OPERATOR",
    "CATEGORY-OVERLAY",
    "CATEGORY-POWER",
    "CATEGORY-STATION",
    "CATEGORY-TIME",
    "CATEGORY-TRANSMITTER",
    "CERTIFICATE",
    "CLAIMED-SCORE",
    "CLUB",
    "CLUB-NAME",
    "EMAIL",
    "E-MAIL",
    "GRID-LOCATOR",
    "GRID-SQUARE",
    "IOTA-ISLAND-NAME",
    "NAME",
    "ADDRESS",
    "ADDRESS-CITY",
    "ADDRESS-STATE-PROVINCE",
    "ADDRESS-STATE",
    "ADDRESS-POSTALCODE",
    "ADDRESS-ZIPCODE",
    "ADDRESS-COUNTRY",
    "OPERATOR",
    "OPERATORS",
    "OFFTIME",
    "SOAPBOX",
    "RIG",
    "DEBUG",
};

/// How many words the text has, the array's size for more than it holds.
std::size_t TakeWords(std::string_view text, QsoWords& words) {
    std::size_t count = 0;
    for (text = Bare(text); !text.empty() && count < words.size(); ++count) {
        words.at(count) = text.substr(0, text.find_first_of(kBlanks));
        text = Bare(text.substr(words.at(count).size()));
    }
    return count;
}

struct Reader {
    TextLines lines;
    ImportedLog log;
    StationFields head = {.remarks = log.remarks};
    StationFields fromContacts = {.remarks = log.remarks};  ///< for what the head does not say

    void ReadAll() {
        while (!lines.AtEnd()) {
            if (const std::string_view line = lines.Take(); !line.empty()) {
                ReadLine(line);
            }
        }
        head.FillIn(fromContacts.station);
        log.station = head.station;
        SettleMode(log);
    }

private:
    void ReadLine(std::string_view line) {
        const std::size_t colon = line.size() > kLongestLine ? std::string_view::npos : line.find(':');
        if (colon == std::string_view::npos) {
            log.notes.Add(lines.Number(), line, "Not understood: no line of Cabrillo");
            return;
        }
        const std::string tag = UpperCase(Bare(line.substr(0, colon)));
        const std::string_view value = Bare(line.substr(colon + 1));
        if (tag == "QSO") {
            ReadContact(line, value);
        } else if (tag == "X-QSO") {
            log.notes.Add(lines.Number(), line, "Left out: marked as not counting (X-QSO)");
        } else {
            ReadTag(line, tag, value);
        }
    }

    void ReadTag(std::string_view line, std::string_view tag, std::string_view value) {
        const auto* const row = std::ranges::find(kStationTags, tag, &StationTag::tag);
        if (row != kStationTags.end()) {
            (head.*row->take)(value, lines.Number());
        } else if (!tag.starts_with("X-") && std::ranges::find(kOtherTags, tag) == kOtherTags.end()) {
            log.notes.Add(lines.Number(), line, "Not understood: unknown tag");
        }
    }

    void ReadContact(std::string_view line, std::string_view text) {
        QsoWords words;
        const std::size_t count = TakeWords(text, words);
        const bool hasTransmitter = count == kQsoWords + 1 && IsDigits(words[kQsoWords]);
        if (count != kQsoWords && !hasTransmitter) {
            log.notes.Add(lines.Number(), line, "Not understood: a contact has 14 words");
            return;
        }
        ContactFields fields = FieldsOf(words);
        if (!fields.refused.empty()) {
            log.notes.Add(lines.Number(), line, "Not understood: " + fields.refused);
            return;
        }
        log.contacts.push_back({std::move(fields.contact), lines.Number(), fields.phone});
        TakeStation(words);
    }

    static ContactFields FieldsOf(const QsoWords& words) {
        ContactFields fields;
        fields.TakeKilohertz(words[kFrequency]);
        fields.TakeDate(words[kDate]);
        fields.TakeTime(words[kTime]);
        fields.TakeSent(words[kSent]);
        fields.TakeCall(words[kCall]);
        fields.TakeReceived(words[kReceived]);
        fields.TakePrecedence(words[kPrecedence]);
        fields.TakeCheck(words[kCheck]);
        fields.TakeSection(words[kSection]);
        fields.TakeMode(words[kMode]);
        return fields;
    }

    void TakeStation(const QsoWords& words) {
        fromContacts.TakeCall(words[kOwnCall], lines.Number());
        fromContacts.TakePrecedence(words[kOwnPrecedence]);
        fromContacts.TakeCheck(words[kOwnCheck]);
        fromContacts.TakeSection(words[kOwnSection], lines.Number());
    }
};

}  // namespace

ImportedLog ReadCabrillo(std::string_view text) {
    Reader reader{.lines = TextLines{text}, .log = {}};
    reader.ReadAll();
    return std::move(reader.log);
}

}  // namespace tallyhut
