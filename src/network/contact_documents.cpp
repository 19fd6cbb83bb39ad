#include "network/contact_documents.h"

#include <algorithm>
#include <array>

#include "contest/bands.h"
#include "network/xml_document.h"
#include "values/format.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

/// An element and what stands in it: a text that is always the same, or what the function makes of the facts.
struct ElementRow {
    std::string_view name;
    std::string_view text = {};
    std::string (*value)(const ContactFacts&) = nullptr;
};

bool IsPhone(const ContactFacts& facts) {
    return facts.preferences.gContestMode == 1;
}

/// Where dates and times are none they stand as they are in the log.
std::string Timestamp(const Contact& contact, int presentYear) {
    return FormatDateText(contact.Date, "yyyy-mm-dd", presentYear) + ' ' +
           FormatDateText(contact.Time, "hh:mm:ss", presentYear);
}

std::string BandEdgeKilohertz(const Contact& contact) {
    const Band* const band = FindBand(contact.Bnd);
    return band == nullptr ? "" : Trim(band->kilohertz);
}

/// In MHz, as a band is called by its lower edge: 3.5 for 80 metres. Empty for what is no band of the contest.
std::string BandName(const Contact& contact) {
    constexpr double kKilohertzAMegahertz = 1'000;
    const std::string kilohertz = BandEdgeKilohertz(contact);
    return kilohertz.empty() ? "" : PlainText(TrimmedNumber(kilohertz) / kKilohertzAMegahertz);
}

/// A contact that no radio gave a frequency has the lower edge of its band, as in the entry.
std::string ContactFrequency(const ContactFacts& facts) {
    if (const std::optional<double> megahertz = ParseNumber(facts.contact.Frq)) {
        return TensOfHertz(*megahertz);
    }
    const std::string kilohertz = BandEdgeKilohertz(facts.contact);
    return kilohertz.empty() ? "0" : kilohertz + "00";
}

std::string Mode(const ContactFacts& facts) {
    return std::string{IsPhone(facts) ? PhoneSideband(facts.contact.Bnd) : "CW"};
}

std::string ContestName(const ContactFacts& facts) {
    return IsPhone(facts) ? "ARRLSSSSB" : "ARRLSSCW";
}

std::string Report(const ContactFacts& facts) {
    return IsPhone(facts) ? "59" : "599";
}

std::string Check(const ContactFacts& facts) {
    const std::string& check = facts.contact.Ck;
    const bool isNumber = !check.empty() && check.find_first_not_of("0123456789") == std::string::npos;
    return isNumber ? check : "0";
}

std::string SentExchange(const ContactFacts& facts) {
    const Preferences& own = facts.preferences;
    return "# " + own.gOwnPrec + ' ' + own.gOwnCheck + ' ' + own.gOwnSection;
}

std::string App(const ContactFacts& facts) {
    return facts.origin.app;
}
std::string StationName(const ContactFacts& facts) {
    return facts.origin.stationName;
}
std::string OwnCall(const ContactFacts& facts) {
    return facts.preferences.gOwnCall;
}
std::string Id(const ContactFacts& facts) {
    return facts.id;
}
std::string TimeBefore(const ContactFacts& facts) {
    return Timestamp(facts.before, facts.presentYear);
}
std::string CallBefore(const ContactFacts& facts) {
    return facts.before.Call;
}

template <std::string Contact::*field>
std::string Field(const ContactFacts& facts) {
    return facts.contact.*field;
}

/// The order is part of the form: some readers count on it.
const std::array kContactElements{
    ElementRow{"app", {}, App},
    ElementRow{"contestname", {}, ContestName},
    ElementRow{"contestnr", "1"},
    ElementRow{"timestamp", {}, [](const ContactFacts& facts) { return Timestamp(facts.contact, facts.presentYear); }},
    ElementRow{"mycall", {}, OwnCall},
    ElementRow{"band", {}, [](const ContactFacts& facts) { return BandName(facts.contact); }},
    ElementRow{"rxfreq", {}, ContactFrequency},
    ElementRow{"txfreq", {}, ContactFrequency},
    ElementRow{"operator", {}, OwnCall},
    ElementRow{"mode", {}, Mode},
    ElementRow{"call", {}, Field<&Contact::Call>},
    ElementRow{"countryprefix"},
    ElementRow{"wpxprefix"},
    ElementRow{"stationprefix", {}, OwnCall},
    ElementRow{"continent"},
    ElementRow{"snt", {}, Report},
    ElementRow{"sntnr", {}, Field<&Contact::Ns>},
    ElementRow{"rcv", {}, Report},
    ElementRow{"rcvnr", {}, Field<&Contact::Nr>},
    ElementRow{"gridsquare"},
    ElementRow{"exchange1"},
    ElementRow{"section", {}, Field<&Contact::Sec>},
    ElementRow{"comment"},
    ElementRow{"qth"},
    ElementRow{"name"},
    ElementRow{"power"},
    ElementRow{"misctext"},
    ElementRow{"zone", "0"},
    ElementRow{"prec", {}, Field<&Contact::P>},
    ElementRow{"ck", {}, Check},
    ElementRow{"ismultiplier1", {}, [](const ContactFacts& facts) { return PlainText(facts.isNewSection ? 1 : 0); }},
    ElementRow{"ismultiplier2", "0"},
    ElementRow{"ismultiplier3", "0"},
    ElementRow{"points", {}, [](const ContactFacts& facts) { return PlainText(facts.isDuplicate ? 0 : 2); }},
    ElementRow{"radionr", "1"},
    ElementRow{"run1run2", "1"},
    ElementRow{"RoverLocation"},
    ElementRow{
        "RadioInterfaced", {}, [](const ContactFacts& facts) { return PlainText(facts.contact.Frq.empty() ? 0 : 1); }},
    ElementRow{"NetworkedCompNr", "0"},
    ElementRow{"IsOriginal", "True"},
    ElementRow{"NetBiosName", {}, StationName},
    ElementRow{"IsRunQSO", "0"},  // whether somebody calls or answers is not known here
    ElementRow{"StationName", {}, StationName},
    ElementRow{"ID", {}, Id},
    ElementRow{"IsClaimedQso", "1"},
    ElementRow{"oldtimestamp", {}, TimeBefore},
    ElementRow{"oldcall", {}, CallBefore},
    ElementRow{"SentExchange", {}, SentExchange},
};

const std::array kDeleteElements{
    ElementRow{"app", {}, App},
    ElementRow{"timestamp", {}, TimeBefore},
    ElementRow{"mycall", {}, OwnCall},
    ElementRow{"band", {}, [](const ContactFacts& facts) { return BandName(facts.before); }},
    ElementRow{"call", {}, CallBefore},
    ElementRow{"contestnr", "1"},
    ElementRow{"StationName", {}, StationName},
    ElementRow{"ID", {}, Id},
};

template <std::size_t count>
std::string Document(std::string_view root, const std::array<ElementRow, count>& rows, const ContactFacts& facts) {
    XmlDocument document{root};
    for (const ElementRow& row : rows) {
        document.Element(row.name, row.value == nullptr ? std::string{row.text} : row.value(facts));
    }
    return document.Text();
}

}  // namespace

std::string ContactInfo(const ContactFacts& facts) {
    return Document("contactinfo", kContactElements, facts);
}

std::string ContactReplace(const ContactFacts& facts) {
    return Document("contactreplace", kContactElements, facts);
}

std::string ContactDelete(const ContactFacts& facts) {
    return Document("contactdelete", kDeleteElements, facts);
}

std::string_view PhoneSideband(std::string_view band) {
    constexpr std::array<std::string_view, 3> kLower{"160", "80", "40"};
    return std::ranges::find(kLower, band) == kLower.end() ? "USB" : "LSB";
}

std::string TensOfHertz(double megahertz) {
    constexpr double kTensAMegahertz = 100'000;
    constexpr double kHighestMegahertz = 1'000'000;
    const bool isFrequency = megahertz > 0 && megahertz < kHighestMegahertz;
    return isFrequency ? PlainText(static_cast<std::int64_t>(RoundHalfEven(megahertz * kTensAMegahertz))) : "0";
}

}  // namespace tallyhut
