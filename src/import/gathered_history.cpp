#include "import/gathered_history.h"

#include "import/contact_fields.h"
#include "values/format.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::string_view kColumns = "!!Order!!,Call,Sect,CK";
constexpr std::size_t kCheckDigits = 2;

/// Empty, and so before all others, where the date is none.
std::string MomentOf(const Contact& contact, int presentYear) {
    if (!ParseDate(contact.Date, presentYear)) {
        return "";
    }
    const std::string date = FormatDateText(contact.Date, "yyyy/mm/dd", presentYear);
    return ParseTime(contact.Time) ? date + ' ' + FormatDateText(contact.Time, "hh:nn:ss", presentYear) : date;
}

}  // namespace

void GatheredHistory::Add(const ImportedLog& log, const SectionList& sections, int presentYear) {
    for (const auto* contacts : {&log.contacts, &log.incomplete}) {
        for (const ImportedContact& imported : *contacts) {
            AddContact(imported.contact, sections, presentYear);
        }
    }
}

void GatheredHistory::AddContact(const Contact& contact, const SectionList& sections, int presentYear) {
    const std::string call = UpperCase(Trim(contact.Call));
    const std::string section{sections.CodeOf(UpperCase(Trim(contact.Sec)))};
    const std::string check = Trim(contact.Ck);
    const bool hasSection = IsSectionCode(section);
    const bool hasCheck = check.size() == kCheckDigits && IsDigits(check);
    if (!IsCall(call) || (!hasSection && !hasCheck)) {
        return;
    }
    Row& row = calls_[call];
    const std::string moment = MomentOf(contact, presentYear);
    if (hasSection) {
        Keep(row.section, section, moment);
    }
    if (hasCheck) {
        Keep(row.check, check, moment);
    }
}

void GatheredHistory::Keep(Known& known, std::string_view text, const std::string& moment) {
    if (moment >= known.moment) {
        known = {std::string{text}, moment};
    }
}

std::string GatheredHistory::Text(std::string_view comment) const {
    std::string text{kColumns};
    text.append(kLineEnd).append("# ").append(comment).append(kLineEnd);
    for (const auto& [call, row] : calls_) {
        text.append(call).append(",").append(row.section.text).append(",").append(row.check.text).append(kLineEnd);
    }
    return text;
}

}  // namespace tallyhut
