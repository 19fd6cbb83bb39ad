#include "reports/adif.h"

#include <algorithm>

#include "reports/column_writer.h"
#include "values/date_time.h"
#include "values/format.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kVersionLength = 4;  // " 4.7"
constexpr std::size_t kTimeDigits = 4;

/// A data item, "<Call:4>W1XX"; the length counts bytes.
std::string Item(std::string_view tag, std::string_view value, std::string_view type = "") {
    std::string item = "<";
    item.append(tag).append(":").append(std::to_string(value.size())).append(type).append(">").append(value);
    return item;
}

/// The item and a blank; nothing for an empty value.
std::string Field(std::string_view tag, std::string_view value, std::string_view type = "") {
    return value.empty() ? "" : Item(tag, value, type) + ' ';
}

std::string Head(const AdifExport& details) {
    const std::size_t shortLength = details.title.size() - std::min(details.title.size(), kVersionLength);
    return FileText({
        "ADIF Export from " + details.title,
        "Written by Alden Voss",
        "www.tallyhut.example    q7zzq@tallyhut.example",
        Item("PROGRAMID", Trim(details.title.substr(0, shortLength))),
        "Log exported on: " + details.exportedAt,
        "",
        "<EOH>",
    });
}

std::string AdifDate(const std::string& date, int presentYear) {
    return ParseDate(date, presentYear) ? FormatDateText(date, "yyyymmdd", presentYear) : "";
}

/// Without a list states are told of the United States alone.
bool HasStates(std::int32_t entity) {
    return entity == kUnitedStates || entity == kHawaii || entity == kAlaska;
}

std::string PlaceFields(const std::string& section, const SectionList* list) {
    const SectionPlace place = list == nullptr ? PlaceOfSection(section) : PlaceOfSection(section, *list);
    const std::string entity = place.dxcc == 0 ? "" : std::to_string(place.dxcc);
    const bool tellsState = list != nullptr || HasStates(place.dxcc);
    return Field("DXCC", entity) + (tellsState ? Field("State", place.state) : "");
}

std::string BandField(const std::string& band) {
    return band.empty() ? "" : Item("Band", band + 'M') + ' ';
}

std::string FrequencyField(const std::string& frequency) {
    return frequency.empty() ? "" : Item("Freq", Trim(frequency)) + ' ';
}

/// What sorts below the digits is no time.
std::string TimeField(const std::string& time) {
    return time >= "0000" ? Item("Time_On", time) + ' ' : "";
}

std::string CommentField(const std::string& comment) {
    return comment.empty() ? "" : Item("Comment", comment).append(kLineEnd);
}

/// The mode ends the first line of a record, whatever follows.
std::string Record(const Contact& contact, const AdifExport& details, int presentYear) {
    std::string record = Field("Call", contact.Call);
    record += Field("Qso_Date", AdifDate(contact.Date, presentYear), ":d");
    record += BandField(contact.Bnd);
    record += Item("Mode", details.phone ? "SSB" : "CW").append(kLineEnd);
    record += Field("Tx_Pwr", details.power);
    record += FrequencyField(contact.Frq);
    record += TimeField(AdifTime(contact.Time));
    record += PlaceFields(contact.Sec, details.sections);
    record += "<Cont:2>NA ";
    record += CommentField(details.comment);
    return record.append("<eor>").append(kLineEnd).append(kLineEnd);
}

}  // namespace

std::string AdifText(const AdifExport& details, const ContactLog& log, int presentYear) {
    std::string text = Head(details);
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        text += Record(log.Row(n), details, presentYear);
    }
    return text;
}

std::string AdifTime(std::string_view time) {
    std::string digits = Trim(time);
    const std::size_t colon = digits.find(':');
    if (colon != std::string::npos) {
        digits = digits.substr(0, colon) + digits.substr(colon + 1, 2);
    }
    digits.resize(std::min(digits.size(), kTimeDigits));
    return std::string(kTimeDigits - digits.size(), '0') + digits;
}

}  // namespace tallyhut
