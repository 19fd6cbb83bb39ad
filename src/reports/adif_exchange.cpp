#include "reports/adif_exchange.h"

#include <algorithm>
#include <array>

#include "contest/section_table.h"
#include "values/date_time.h"
#include "values/format.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::string_view kAdifVersion = "3.1.6";

/// An island whose entity is another than that of the section that it counts for.
struct Island {
    std::string_view section;
    std::string_view letters;  ///< that the call's prefix ends in, behind the first letter; of three the whole call
    std::string_view firsts;   ///< one of which the prefix begins with
    std::int32_t dxcc;
};

/// Islands without a row have the section's own entity.
constexpr std::array kIslands{
    Island{"PAC", "H0", "AKNW", 166},  Island{"PAC", "H1", "AKNW", 20},  Island{"PAC", "H2", "AKNW", 103},
    Island{"PAC", "H3", "AKNW", 123},  Island{"PAC", "H4", "AKNW", 174}, Island{"PAC", "H5", "AKNW", 197},
    Island{"PAC", "H7K", "AKNW", 138}, Island{"PAC", "H8", "AKNW", 9},   Island{"PAC", "H9", "AKNW", 297},
    Island{"NS", "Y0", "C", 211},      Island{"NS", "Y9", "C", 252},     Island{"MAR", "Y0", "C", 211},
    Island{"MAR", "Y9", "C", 252},
};

/// Sections of Canada that a list may lack and contacts hold.
constexpr std::array kLaterPlaces{
    SectionPlace{"NB", "NB", kCanada}, SectionPlace{"NS", "NS", kCanada}, SectionPlace{"PE", "PE", kCanada},
    SectionPlace{"GH", "ON", kCanada}, SectionPlace{"TER", "", kCanada},
};

/// The section of several territories has the state that the call tells.
struct Territory {
    std::string_view prefix;
    std::string_view state;
};

constexpr std::array<std::string_view, 3> kSectionsOfTerritories{"TER", "NT", "NWT"};
constexpr std::array kTerritories{Territory{"VE8", "NT"}, Territory{"VY0", "NU"}, Territory{"VY1", "YT"}};

/// The sections of ADIF beside those of 2014.
constexpr std::array<std::string_view, 7> kOtherAdifSections{"NB", "NS", "PE", "GH", "TER", "ON", "NWT"};

/// The bands that ADIF names by their metres.
constexpr std::array<std::string_view, 13> kAdifBands{"160", "80", "60", "40", "30", "20",  "17",
                                                      "15",  "12", "10", "6",  "2",  "1.25"};

bool IsDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// Digits with at most one point among them, as ADIF has a number.
bool IsPlainNumber(std::string_view text) {
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    const std::string_view fraction = point == std::string_view::npos ? "0" : text.substr(point + 1);
    return IsDigits(whole) && IsDigits(fraction);
}

/// ADIF has no characters beyond ASCII and none that control.
std::string Ascii(std::string_view text) {
    std::string plain{text};
    std::ranges::replace_if(
        plain, [](char c) { return c < ' ' || c > '~'; }, '?');
    return plain;
}

/// The item and a blank; nothing for an empty value.
std::string Field(std::string_view tag, std::string_view value) {
    if (value.empty()) {
        return "";
    }
    std::string item = "<";
    return item.append(tag).append(":").append(std::to_string(value.size())).append(">").append(Ascii(value)) + ' ';
}

std::string NumberField(std::string_view tag, std::string_view value) {
    const std::string number = Trim(value);
    return IsPlainNumber(number) ? Field(tag, number) : "";
}

/// The digits without zeros before them.
std::string SerialField(std::string_view tag, std::string_view serial) {
    std::string digits = Trim(serial);
    if (!IsDigits(digits)) {
        return "";
    }
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return Field(tag, digits);
}

bool IsAdifSection(std::string_view section) {
    return ToldSections().Find(section) != 0 ||
           std::ranges::find(kOtherAdifSections, section) != kOtherAdifSections.end();
}

std::string SectionField(std::string_view tag, std::string_view section) {
    return IsAdifSection(section) ? Field(tag, section) : "";
}

/// The part of the call that tells where it is worked from: the shortest of those that begin like KH2, for the place
/// may stand before or behind the call. KH2 of KH2/W1XX, KH6 of KH2XX/KH6; empty for none.
std::string_view PlaceOfCall(std::string_view call) {
    constexpr std::size_t kDigitAt = 2;
    std::string_view place;
    while (!call.empty()) {
        const std::string_view part = call.substr(0, call.find('/'));
        call.remove_prefix(std::min(part.size() + 1, call.size()));
        const bool isPlace = part.size() > kDigitAt && IsDigits(part.substr(kDigitAt, 1));
        if (isPlace && (place.empty() || part.size() <= place.size())) {
            place = part;
        }
    }
    return place;
}

bool IsFrom(std::string_view place, const Island& island) {
    const std::string_view behindFirst = place.empty() ? place : place.substr(1);
    const bool isThere = behindFirst.substr(0, 2) == island.letters || behindFirst == island.letters;
    return isThere && island.firsts.find(place.front()) != std::string_view::npos;
}

/// Nothing but the section's own name for one that is not known at all.
SectionPlace KnownPlace(std::string_view section, const SectionList& sections) {
    if (IsPlaceKnown(section, sections)) {
        return PlaceOfSection(section, sections);
    }
    const auto* const later = std::ranges::find(kLaterPlaces, section, &SectionPlace::section);
    return later != kLaterPlaces.end() ? *later : SectionPlace{section, "", 0};
}

std::string_view StateOf(std::string_view call, const SectionPlace& place) {
    const std::string_view from = PlaceOfCall(call);
    const auto* const territory =
        std::ranges::find_if(kTerritories, [from](const Territory& row) { return from.starts_with(row.prefix); });
    const bool hasTerritories =
        std::ranges::find(kSectionsOfTerritories, place.section) != kSectionsOfTerritories.end();
    return hasTerritories && territory != kTerritories.end() ? territory->state : place.state;
}

std::string BandField(std::string_view band) {
    const bool isOfAdif = std::ranges::find(kAdifBands, band) != kAdifBands.end();
    return isOfAdif ? Field("BAND", std::string{band} + 'm') : "";
}

std::string MomentFields(const Contact& contact, int presentYear) {
    const bool withSeconds = std::ranges::count(contact.Time, ':') == 2;
    std::string fields;
    if (ParseDate(contact.Date, presentYear)) {
        fields += Field("QSO_DATE", FormatDateText(contact.Date, "yyyymmdd", presentYear));
    }
    if (ParseTime(contact.Time)) {
        fields += Field("TIME_ON", FormatDateText(contact.Time, withSeconds ? "hhnnss" : "hhnn", presentYear));
    }
    return fields;
}

/// Precedence, check and section, blanks between them; empty where one is missing, for a reader could not tell which.
std::string ExchangeBehindSerial(std::string_view precedence, std::string_view check, std::string_view section) {
    std::string exchange;
    for (const std::string_view part : {precedence, check, section}) {
        const std::string word = Trim(part);
        if (word.empty()) {
            return "";
        }
        exchange.append(exchange.empty() ? "" : " ").append(word);
    }
    return exchange;
}

std::string PlaceFields(const Contact& contact, const SectionList& sections) {
    const std::string call = UpperCase(contact.Call);
    const std::int32_t entity = EntityOf(call, contact.Sec, sections);
    if (entity == 0) {
        return "";
    }
    const SectionPlace place = KnownPlace(contact.Sec, sections);
    const std::string state{entity == place.dxcc ? StateOf(call, place) : ""};
    return Field("DXCC", PlainText(entity)) + Field("STATE", state);
}

std::string Head(const AdifExchange& details) {
    const std::size_t version = details.title.rfind(' ');
    const std::string name = details.title.substr(0, version);
    const std::string number = version == std::string::npos ? "" : details.title.substr(version + 1);
    std::string head = "The log of the contest, with the exchange";
    head.append(kLineEnd).append(Field("ADIF_VER", kAdifVersion));
    head += Field("CREATED_TIMESTAMP", details.writtenAt) + Field("PROGRAMID", Trim(name));
    return head.append(Field("PROGRAMVERSION", number)).append("<EOH>").append(kLineEnd);
}

std::string Record(const Contact& contact, const AdifExchange& details, const Preferences& station,
                   const SectionList& sections, int presentYear) {
    const bool phone = station.gContestMode == 1;
    std::string record = Field("CALL", UpperCase(contact.Call));
    record += MomentFields(contact, presentYear);
    record += BandField(contact.Bnd) + NumberField("FREQ", contact.Frq);
    record += Field("MODE", phone ? "SSB" : "CW");
    record += Field("CONTEST_ID", phone ? "ARRL-SS-SSB" : "ARRL-SS-CW");
    record += SerialField("STX", contact.Ns);
    record += Field("STX_STRING", ExchangeBehindSerial(station.gOwnPrec, station.gOwnCheck, station.gOwnSection));
    record += SerialField("SRX", contact.Nr);
    record += Field("SRX_STRING", ExchangeBehindSerial(contact.P, contact.Ck, contact.Sec));
    record += Field("PRECEDENCE", contact.P) + Field("CHECK", contact.Ck) + SectionField("ARRL_SECT", contact.Sec);
    record += PlaceFields(contact, sections);
    record += Field("STATION_CALLSIGN", station.gOwnCall) + Field("OPERATOR", station.gOwnCall);
    record += SectionField("MY_ARRL_SECT", station.gOwnSection);
    record += NumberField("TX_PWR", details.power) + Field("COMMENT", details.comment);
    return record.append("<EOR>").append(kLineEnd);
}

}  // namespace

std::string AdifExchangeText(const AdifExchange& details, const Preferences& station, const ContactLog& log,
                             const SectionList& sections, int presentYear) {
    std::string text = Head(details);
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        text += Record(log.Row(n), details, station, sections, presentYear);
    }
    return text;
}

std::int32_t EntityOf(std::string_view call, std::string_view section, const SectionList& sections) {
    const std::string_view from = PlaceOfCall(call);
    const auto* const island = std::ranges::find_if(
        kIslands, [from, section](const Island& row) { return row.section == section && IsFrom(from, row); });
    return island != kIslands.end() ? island->dxcc : KnownPlace(section, sections).dxcc;
}

}  // namespace tallyhut
