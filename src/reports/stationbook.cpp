#include "reports/stationbook.h"

#include "values/text_file.h"

namespace tallyhut {
namespace {

/// Only the first letter of a call is looked at, so VP2MM counts as Canada too.
bool CountsAsCanada(const Contact& contact) {
    return contact.Call.starts_with('V');
}

void Empty(int fields, RecordWriter& record) {
    for (int i = 0; i < fields; ++i) {
        record.Empty();
    }
}

std::string_view StateOf(const std::string& section, const SectionList* list) {
    return list == nullptr ? PlaceOfSection(section).state : PlaceOfSection(section, *list).state;
}

void WriteContact(const Contact& contact, bool phone, const SectionList* sections, RecordWriter& record) {
    record.Text(contact.Call).Text(contact.Date).Text(contact.Bnd).Text(phone ? "SSB" : "CW");
    Empty(1, record);
    record.Text(contact.Time);
    Empty(3, record);
    const bool canada = CountsAsCanada(contact);
    record.Text(canada ? "Canada" : "USA").Text(canada ? "" : StateOf(contact.Sec, sections));
    Empty(4, record);
    record.Text("ARRL November Sweepstakes Contest - Section - " + contact.Sec).EndLine();
}

}  // namespace

std::string StationbookText(const ContactLog& log, bool phone, const SectionList* sections) {
    RecordWriter record;
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        WriteContact(log.Row(n), phone, sections, record);
    }
    return record.Result();
}

}  // namespace tallyhut
