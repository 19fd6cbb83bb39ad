#include "import/station_fields.h"

#include <algorithm>

#include "import/contact_fields.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kMostSections = 8;
constexpr std::string_view kOwnContest = "ARRL-SS";

std::optional<bool> PhoneOfContest(const std::string& contest) {
    if (contest.find("SSB") != std::string::npos) {
        return true;
    }
    return contest.find("CW") != std::string::npos ? std::optional{false} : std::nullopt;
}

/// The first contact decides where there are as many of each.
std::optional<bool> PhoneOfContacts(const std::vector<ImportedContact>& contacts) {
    const auto count = [&contacts](bool phone) { return std::ranges::count(contacts, phone, &ImportedContact::phone); };
    const auto phones = count(true);
    const auto others = count(false);
    if (phones != others) {
        return phones > others;
    }
    const auto first =
        std::ranges::find_if(contacts, [](const ImportedContact& contact) { return contact.phone.has_value(); });
    return first == contacts.end() ? std::nullopt : first->phone;
}

void KeepFirst(std::string& kept, const std::string& value) {
    kept = kept.empty() ? value : kept;
}

}  // namespace

void StationFields::TakeCall(std::string_view call, std::size_t line) {
    const std::string name = UpperCase(call);
    if (IsCall(name)) {
        KeepFirst(station.call, name);
    } else if (!name.empty() && station.call.empty() && name != refusedCall) {
        remarks.Add(line, name, "Not taken as the own call: it is none");
        refusedCall = name;
    }
}

void StationFields::TakePrecedence(std::string_view precedence) {
    ContactFields fields;
    fields.TakePrecedence(precedence);
    KeepFirst(station.precedence, fields.refused.empty() ? fields.contact.P : "");
}

void StationFields::TakeCheck(std::string_view check) {
    ContactFields fields;
    fields.TakeCheck(check);
    KeepFirst(station.check, fields.refused.empty() ? fields.contact.Ck : "");
}

void StationFields::TakeSection(std::string_view section, std::size_t line) {
    const std::string code = UpperCase(section);
    auto& kept = station.sections;
    if (!code.empty() && kept.size() < kMostSections &&
        std::ranges::find(kept, code, &OwnSection::text) == kept.end()) {
        kept.push_back({code, line});
    }
}

void StationFields::TakeContest(std::string_view contest, std::size_t line) {
    const std::string name = UpperCase(contest);
    if (name.empty()) {
        return;
    }
    const bool isOther = !name.starts_with(kOwnContest);
    if (isOther && name != otherContest) {
        remarks.Add(line, name, "Kept, though the contest is not " + std::string{kOwnContest});
        otherContest = name;
    }
    if (!isContestTold) {
        station.phone = isOther ? std::nullopt : PhoneOfContest(name);
        isContestTold = true;
    }
}

void StationFields::FillIn(const ImportedStation& other) {
    KeepFirst(station.call, other.call);
    KeepFirst(station.precedence, other.precedence);
    KeepFirst(station.check, other.check);
    for (const OwnSection& section : other.sections) {
        TakeSection(section.text, section.line);
    }
}

void SettleMode(ImportedLog& log) {
    std::optional<bool>& phone = log.station.phone;
    if (!phone) {
        phone = PhoneOfContacts(log.contacts);
    }
    for (const ImportedContact& imported : log.contacts) {
        if (imported.phone && imported.phone != phone) {
            const std::string_view finding =
                *phone ? "Kept: a CW contact in a log of phone" : "Kept: a phone contact in a log of CW";
            log.remarks.Add(imported.line, imported.contact.Call, std::string{finding});
        }
    }
}

}  // namespace tallyhut
