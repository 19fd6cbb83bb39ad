#include "reports/cabrillo.h"

#include <algorithm>
#include <array>

#include "contest/bands.h"
#include "contest/score.h"
#include "reports/report_text.h"
#include "values/format.h"

namespace tallyhut {
namespace {

/// The sponsor's robot wants the band and not the frequency, so the contact's own frequency plays no part.
std::string_view FrequencyField(std::string_view name) {
    const Band* band = FindBand(name);
    return band == nullptr ? "" : band->kilohertz;
}

std::string_view ModeWord(const Preferences& station) {
    return station.gContestMode == 1 ? "PH" : "CW";
}

/// The values that stand in the head where they hang together.
struct Categories {
    std::string_view operators;
    std::string_view transmitter = "ONE";
    bool assisted = false;
};

/// What version 3 of the format has for operator categories that it does not list.
struct ListedCategory {
    std::string_view chosen;
    Categories listed;
};

constexpr std::array kListedCategories{
    ListedCategory{"SINGLE-OP-ASSISTED", {"SINGLE-OP", "ONE", true}},
    ListedCategory{"MULTI-TWO", {"MULTI-OP", "TWO", false}},
    ListedCategory{"MULTI-MULTI", {"MULTI-OP", "UNLIMITED", false}},
};

Categories CategoriesOf(const CabrilloEntry& entry) {
    const auto* const row = std::ranges::find(kListedCategories, entry.categoryOperator, &ListedCategory::chosen);
    if (!entry.asCabrillo3Lists || row == kListedCategories.end()) {
        return {.operators = entry.categoryOperator, .assisted = entry.assisted};
    }
    Categories categories = row->listed;
    categories.assisted = categories.assisted || entry.assisted;
    return categories;
}

std::string_view ModeCategory(const CabrilloEntry& entry, const Preferences& station) {
    return entry.asCabrillo3Lists && station.gContestMode == 1 ? "SSB" : ModeWord(station);
}

/// The section stands before the contest, as it always has in these files.
void WriteStation(const CabrilloEntry& entry, const Preferences& station, ColumnWriter& lines) {
    lines.Line("START-OF-LOG: 3.0");
    lines.Line("CREATED-BY: " + entry.createdBy);
    lines.Text(entry.asCabrillo3Lists ? "LOCATION: " : "ARRL-SECTION: ").Line(station.gOwnSection);
    lines.Line(station.gContestMode == 1 ? "CONTEST: ARRL-SS-SSB" : "CONTEST: ARRL-SS-CW");
    lines.Line("CALLSIGN: " + station.gOwnCall);
}

void WriteCategories(const CabrilloEntry& entry, const Preferences& station, ColumnWriter& lines) {
    const Categories categories = CategoriesOf(entry);
    if (!categories.operators.empty()) {
        lines.Text("CATEGORY-OPERATOR: ").Line(categories.operators);
    }
    lines.Text("CATEGORY-TRANSMITTER: ").Line(categories.transmitter);
    lines.Line("CATEGORY-BAND: ALL");
    lines.Text("CATEGORY-POWER: ").Line(entry.power);
    lines.Text("CATEGORY-ASSISTED: ").Line(categories.assisted ? "ASSISTED" : "NON-ASSISTED");
    lines.Text("CATEGORY-MODE: ").Line(ModeCategory(entry, station));
    lines.Text("CATEGORY-STATION: ").Line(entry.schoolClub ? "SCHOOL" : "FIXED");
}

void WriteEntrant(const CabrilloEntry& entry, const Preferences& station, ColumnWriter& lines) {
    lines.Line("OPERATORS: " + (entry.operators.empty() ? station.gOwnCall : entry.operators));
    lines.Line("CLUB: " + entry.club);
    lines.Line("NAME: " + entry.name);
    lines.Line("ADDRESS: " + entry.addressLine1);
    lines.Line("ADDRESS: " + entry.addressLine2);
    if (!entry.eMail.empty()) {
        lines.Text(entry.asCabrillo3Lists ? "EMAIL: " : "ADDRESS: (e-mail) ").Line(entry.eMail);
    }
    lines.Line("SOAPBOX: " + entry.soapbox);
}

std::string ThreeWide(const std::string& section) {
    return section.size() == 2 ? section + ' ' : section;
}

void WriteContact(const Contact& contact, const Preferences& station, int presentYear, ColumnWriter& lines) {
    lines.Text("QSO:");
    lines.At(6, FrequencyField(contact.Bnd));
    lines.At(12, ModeWord(station));
    lines.At(15, FormatDateText(contact.Date, "yyyy-mm-dd", presentYear));
    lines.At(26, HoursAndMinutes(contact.Time));
    lines.At(31, station.gOwnCall);
    lines.EndingAt(45, contact.Ns);
    lines.At(47, station.gOwnPrec);
    lines.At(49, station.gOwnCheck);
    lines.At(52, station.gOwnSection);
    lines.At(56, contact.Call);
    lines.EndingAt(70, contact.Nr);
    lines.At(72, contact.P);
    lines.At(74, contact.Ck);
    lines.At(77, ThreeWide(contact.Sec));
    lines.EndLine();
}

}  // namespace

void WriteCabrillo(const CabrilloEntry& entry, const Preferences& station, const ContactLog& log, int sectionsWorked,
                   int presentYear, ColumnWriter& lines) {
    WriteStation(entry, station, lines);
    WriteCategories(entry, station, lines);
    lines.Line("CLAIMED-SCORE: " + PlainText(ClaimedScore(log.gContactCount(), sectionsWorked)));
    WriteEntrant(entry, station, lines);
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        WriteContact(log.Row(n), station, presentYear, lines);
    }
    lines.Line("END-OF-LOG:");
}

}  // namespace tallyhut
