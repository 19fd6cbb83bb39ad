#include "import/adif_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>
#include <vector>

#include "import/contact_fields.h"
#include "import/log_text.h"
#include "import/station_fields.h"
#include "values/text.h"
#include "values/text_lines.h"

namespace tallyhut {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;
constexpr std::size_t kLongestTag = 100;      // from "<" to ">"
constexpr std::size_t kLongestRemark = 1000;  // of data that may hold an end of a record
constexpr std::string_view kEndOfHead = "EOH";
constexpr std::string_view kEndOfRecord = "EOR";

/// The fields that matter to a contest's log; all others are passed over.
enum FieldAt : std::size_t {
    kCall,
    kDate,
    kTime,
    kBand,
    kFrequency,
    kMode,
    kContest,
    kSent,
    kReceived,
    kPrecedence,
    kCheck,
    kSection,
    kSentString,
    kReceivedString,
    kStationCall,
    kOperator,
    kOwnSection,
    kFieldCount,
};

constexpr std::array<std::string_view, kFieldCount> kNames{
    "CALL",         "QSO_DATE",   "TIME_ON", "BAND",      "FREQ",       "MODE",       "CONTEST_ID",       "STX",
    "SRX",          "PRECEDENCE", "CHECK",   "ARRL_SECT", "STX_STRING", "SRX_STRING", "STATION_CALLSIGN", "OPERATOR",
    "MY_ARRL_SECT",
};

/// What a contact must have, beside its band, which its frequency says too.
constexpr std::array kNeeded{kCall, kDate, kTime, kSent, kReceived, kPrecedence, kCheck, kSection};

/// A tag as it stands: "<CALL:4>".
struct Tag {
    std::string name;
    std::optional<std::string_view> length;  ///< none where no ":" stands: such a tag is no field
    std::size_t dataAt = 0;
};

/// A tag that ends a head or a record.
struct End {
    std::size_t at = kNowhere;
    std::size_t length = 0;

    std::size_t Behind() const { return at + length; }
};

End FindEnd(std::string_view text, std::string_view name, std::size_t from) {
    for (std::size_t at = text.find('<', from); at != kNowhere; at = text.find('<', at + 1)) {
        if (const std::size_t length = LengthOfEnd(text.substr(at), name); length != 0) {
            return {at, length};
        }
    }
    return {};
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

/// None where no ">" is near.
std::optional<Tag> TagAt(std::string_view text, std::size_t at) {
    const std::string_view near = text.substr(at, kLongestTag);
    const std::size_t close = near.find('>');
    if (close == kNowhere) {
        return std::nullopt;
    }
    const std::string_view inside = near.substr(1, close - 1);
    const std::size_t colon = std::min(inside.find(':'), inside.size());
    Tag tag{.name = UpperCase(Bare(inside.substr(0, colon))), .length = {}, .dataAt = at + close + 1};
    if (colon < inside.size()) {
        const std::string_view behind = inside.substr(colon + 1);
        tag.length = behind.substr(0, behind.find(':'));
    }
    return tag;
}

/// Whether a tag with a length begins in the text.
bool HoldsField(std::string_view text) {
    for (std::size_t at = text.find('<'); at != kNowhere; at = text.find('<', at + 1)) {
        if (const std::optional<Tag> tag = TagAt(text, at); tag && tag->length) {
            return true;
        }
    }
    return false;
}

/// The precedence, check and section at the end of an exchange that is told as one text, with the serial before them or
/// not.
struct Exchange {
    std::string_view serial, precedence, check, section;
};

Exchange SplitExchange(std::string_view text) {
    std::vector<std::string_view> words;
    constexpr std::size_t kMostWords = 5;
    for (text = Bare(text); !text.empty() && words.size() < kMostWords; text = Bare(text)) {
        words.push_back(text.substr(0, text.find(' ')));
        text.remove_prefix(words.back().size());
    }
    const std::size_t count = words.size();
    if (count < 3 || count == kMostWords) {
        return {};
    }
    return {count == 4 ? words[0] : std::string_view{}, words[count - 3], words[count - 2], words[count - 1]};
}

/// One record while it is read.
struct Record {
    std::array<std::string_view, kFieldCount> fields{};
    std::size_t line = 0;  ///< 0 while nothing of it was met
    std::size_t at = 0;    ///< where it begins
    std::string damage;    ///< the first reason why its fields cannot be relied on

    std::string_view operator[](FieldAt field) const { return fields.at(field); }
    void Damage(std::string reason) {
        if (damage.empty()) {
            damage = std::move(reason);
        }
    }
    /// What dedicated fields do not say the exchange as a text may.
    void FillInExchange() {
        const Exchange heard = SplitExchange(fields[kReceivedString]);
        const Exchange sent = SplitExchange(fields[kSentString]);
        const auto fill = [this](FieldAt field, std::string_view value) {
            fields.at(field) = fields.at(field).empty() ? value : fields.at(field);
        };
        fill(kReceived, heard.serial);
        fill(kPrecedence, heard.precedence);
        fill(kCheck, heard.check);
        fill(kSection, heard.section);
        fill(kSent, sent.serial);
    }
    std::string Missing() const {
        std::string missing;
        const auto add = [&missing](std::string_view name) {
            missing.append(missing.empty() ? "" : ", ").append(name);
        };
        for (const FieldAt field : kNeeded) {
            if (fields.at(field).empty()) {
                add(kNames.at(field));
            }
        }
        if (fields[kBand].empty() && fields[kFrequency].empty()) {
            add(kNames[kBand]);
        }
        return missing;
    }
};

/// Only what is there.
ContactFields ContactOf(const Record& record) {
    struct Row {
        FieldAt field;
        void (ContactFields::*take)(std::string_view);
    };
    constexpr std::array kRows{
        Row{kCall, &ContactFields::TakeCall},           Row{kDate, &ContactFields::TakeDate},
        Row{kTime, &ContactFields::TakeTime},           Row{kBand, &ContactFields::TakeBand},
        Row{kFrequency, &ContactFields::TakeMegahertz}, Row{kSent, &ContactFields::TakeSent},
        Row{kReceived, &ContactFields::TakeReceived},   Row{kPrecedence, &ContactFields::TakePrecedence},
        Row{kCheck, &ContactFields::TakeCheck},         Row{kSection, &ContactFields::TakeSection},
        Row{kMode, &ContactFields::TakeMode},
    };
    ContactFields fields;
    for (const Row& row : kRows) {
        if (!record[row.field].empty()) {
            (fields.*row.take)(record[row.field]);
        }
    }
    return fields;
}

struct Reader {
    std::string_view text;
    ImportedLog log;
    Record record;
    StationFields station = {.remarks = log.remarks};
    std::size_t at = 0;         ///< of what is read next
    std::size_t countedTo = 0;  ///< how far lines have been counted
    std::size_t line = 1;       ///< of that place
    End recordEnd = {};         ///< the next <EOR>, from `at` on

    void ReadAll() {
        PassHead();
        recordEnd = FindEnd(text, kEndOfRecord, at);
        for (at = text.find('<', at); at != kNowhere; at = text.find('<', at)) {
            if (at == recordEnd.at) {
                EndRecord();
                at = recordEnd.Behind();
                recordEnd = FindEnd(text, kEndOfRecord, at);
            } else {
                ReadField();
            }
        }
        if (record.line != 0) {
            NoteMissingEnd();
        }
        log.station = station.station;
        SettleMode(log);
    }

private:
    /// A head is there only where the first character is no "<", and it may hold anything. An end behind that of a
    /// record is of another file's head, which was joined to this one.
    void PassHead() {
        const End end = text.starts_with('<') ? End{} : FindEnd(text, kEndOfHead, 0);
        const bool isFirst = end.at != kNowhere && FindEnd(text.substr(0, end.at), kEndOfRecord, 0).at == kNowhere;
        at = isFirst ? end.Behind() : 0;
    }

    /// What came before in a head is no record; but a call does not stand in one.
    void EndLaterHead() {
        if (!record[kCall].empty()) {
            NoteMissingEnd();
        }
        record = {};
    }

    void NoteMissingEnd() { log.notes.Add(record.line, Beginning(), "Not understood: the record has no end"); }

    /// Goes on behind the data, or where the length cannot be believed, behind the tag.
    void ReadField() {
        const std::size_t limit = std::min(recordEnd.at, text.size());
        const std::optional<Tag> tag = TagAt(text, at);
        if (!tag || tag->dataAt > limit) {
            Begin();
            record.Damage("a field has no end");
            ++at;
            return;
        }
        if (tag->length) {
            Begin();
        }
        at = tag->dataAt;
        if (tag->name == kEndOfHead) {
            EndLaterHead();
        } else if (tag->length) {
            TakeData(tag->name, *tag->length, limit);
        }
    }

    void TakeData(const std::string& name, std::string_view told, std::size_t limit) {
        std::size_t length = 0;
        const char* const end = told.data() + told.size();
        const auto [parsed, error] = std::from_chars(told.data(), end, length);
        if (error != std::errc{} || parsed != end) {
            record.Damage("the length of " + name + " is no number");
        } else if (length > limit - at && !HoldsEnd(length)) {
            record.Damage("the length of " + name + " reaches beyond the record");
        } else {
            Keep(name, text.substr(at, length));
            at += length;
            if (at > limit) {
                recordEnd = FindEnd(text, kEndOfRecord, at);
            }
        }
    }

    /// Whether the end of the record that the data reaches beyond belongs to the data. It does not where another record
    /// begins behind it: in the data, or behind them with what this one has already.
    bool HoldsEnd(std::size_t length) const {
        if (!record.damage.empty() || length > kLongestRemark || length > text.size() - at) {
            return false;
        }
        const std::string_view data = text.substr(at, length);
        const std::string_view behind = text.substr(at + length);
        return std::ranges::none_of(data, IsControl) && !HoldsField(data) && !IsGlued(behind) && GoesOn(behind);
    }

    /// Whether the record has an end there, and until then nothing that it has already.
    bool GoesOn(std::string_view behind) const {
        const std::size_t end = FindEnd(behind, kEndOfRecord, 0).at;
        const std::string_view rest = behind.substr(0, end);
        for (std::size_t next = rest.find('<'); next != kNowhere; next = rest.find('<', next + 1)) {
            const std::optional<Tag> tag = TagAt(rest, next);
            const auto* const found = tag ? std::ranges::find(kNames, tag->name) : kNames.end();
            if (found != kNames.end() && !record.fields.at(IndexOf(found)).empty()) {
                return false;
            }
        }
        return end != kNowhere;
    }

    /// Whether the data before went on here.
    static bool IsGlued(std::string_view behind) {
        return !behind.empty() && behind.front() != '<' && behind.front() != ' ' && !IsControl(behind.front());
    }

    static std::size_t IndexOf(const std::string_view* name) { return static_cast<std::size_t>(name - kNames.begin()); }

    void Begin() {
        if (record.line != 0) {
            return;
        }
        line += static_cast<std::size_t>(std::count(text.begin() + static_cast<std::ptrdiff_t>(countedTo),
                                                    text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
        countedTo = at;
        record.line = line;
        record.at = at;
    }

    void Keep(std::string_view name, std::string_view data) {
        const auto* const found = std::ranges::find(kNames, name);
        if (found == kNames.end()) {
            return;
        }
        if (IsGlued(text.substr(at + data.size()))) {
            record.Damage("the length of " + std::string{name} + " is too short");
        }
        std::string_view& field = record.fields.at(IndexOf(found));
        if (!field.empty()) {
            record.Damage(std::string{name} + " stands there twice");
        }
        field = Bare(data);
    }

    std::string_view Beginning() const { return text.substr(record.at, std::min(at, text.size()) - record.at); }

    void EndRecord() {
        if (record.line != 0) {
            TakeRecord();
        }
        record = {};
    }

    void TakeRecord() {
        if (!record.damage.empty()) {
            log.notes.Add(record.line, Beginning(), "Not understood: " + record.damage);
            return;
        }
        record.FillInExchange();
        ContactFields fields = ContactOf(record);
        const std::string missing = record.Missing();
        if (!fields.refused.empty()) {
            log.notes.Add(record.line, Beginning(), "Not understood: " + fields.refused);
        } else if (!missing.empty()) {
            log.notes.Add(record.line, Beginning(), "Incomplete, not imported: it lacks " + missing);
            log.incomplete.push_back({std::move(fields.contact), record.line});
        } else {
            if (!fields.remark.empty()) {
                log.remarks.Add(record.line, fields.contact.Call, "Kept without its frequency: " + fields.remark);
            }
            const auto phone = record[kMode].empty() ? std::nullopt : std::optional{fields.phone};
            log.contacts.push_back({std::move(fields.contact), record.line, phone});
            TakeStation();
        }
    }

    void TakeStation() {
        const Exchange sent = SplitExchange(record[kSentString]);
        station.TakeCall(record[kStationCall], record.line);
        station.TakeCall(record[kOperator], record.line);
        station.TakePrecedence(sent.precedence);
        station.TakeCheck(sent.check);
        station.TakeSection(record[kOwnSection], record.line);
        station.TakeSection(sent.section, record.line);
        station.TakeContest(record[kContest], record.line);
    }
};

}  // namespace

ImportedLog ReadAdif(std::string_view text) {
    Reader reader{.text = text, .log = {}, .record = {}};
    reader.ReadAll();
    return std::move(reader.log);
}

}  // namespace tallyhut
