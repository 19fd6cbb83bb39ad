#include "reports/merged_log.h"

#include <optional>

#include "contest/contact_log.h"
#include "contest/score.h"
#include "reports/column_writer.h"
#include "reports/report_text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLinesPerPage = 56;
constexpr int kHeadRightColumn = 54;

/// The columns of a contact's line, counted from 1.
struct ContactColumns {
    int band, date, time, numberSent, numberReceived, precedence, call, check, section, score;
};

constexpr ContactColumns kFileColumns{1, 5, 15, 20, 28, 35, 37, 47, 50, 62};
constexpr ContactColumns kPageColumns{3, 9, 21, 28, 38, 48, 51, 68, 76, 95};

/// Takes records from a file while there are any.
template <typename Record>
std::optional<Record> NextRecord(FieldReader& fields, Record (*read)(FieldReader&)) {
    return fields.AtEnd() ? std::nullopt : std::optional{read(fields)};
}

TimeRecord ReadTimeRecord(FieldReader& fields) {
    TimeRecord record;
    record.on = fields.TakeByte();
    record.date = fields.Take();
    record.time = fields.Take();
    record.duration = fields.Take();
    return record;
}

bool ContactGoesFirst(const Contact& contact, const TimeRecord& record) {
    return contact.Date < record.date || (contact.Date == record.date && contact.Time < record.time);
}

ReportedContact CountContact(Contact contact, MergedLog& merged) {
    if (++merged.contacts > ContactLog::kMostContacts) {
        throw LogFullError{"More contacts than the tables hold."};
    }
    ReportedContact reported{.contact = std::move(contact)};
    const int section = merged.sections.Find(reported.contact.Sec);
    if (section != 0 && merged.sections.Count(section)) {
        const bool twoWide = reported.contact.Sec.size() == 2;
        reported.newSection = NumberForm(merged.sections.gSectionsWorked) + (twoWide ? "  New!" : " New!");
    }
    reported.score = Score(merged.sections.gSectionsWorked, merged.contacts);
    return reported;
}

void WriteContact(const ReportedContact& reported, const ContactColumns& columns, ColumnWriter& lines) {
    const Contact& contact = reported.contact;
    lines.At(columns.band, contact.Bnd).At(columns.date, contact.Date);
    lines.At(columns.time, HoursAndMinutes(contact.Time));
    lines.At(columns.numberSent, contact.Ns).At(columns.numberReceived, contact.Nr).At(columns.precedence, contact.P);
    lines.At(columns.call, contact.Call).At(columns.check, contact.Ck);
    lines.At(columns.section, contact.Sec).Text(reported.newSection);
    lines.At(columns.score, NumberForm(reported.score)).EndLine();
}

std::string TimeLine(const TimeRecord& record) {
    if (record.on == 1) {
        return " Logged ON  at " + record.date + "  " + record.time;
    }
    return " Logged OFF at " + record.date + "  " + record.time + "  Cumulative contest duration = " + record.duration;
}

PrintedPage PageHead(const Preferences& station) {
    ColumnWriter lines;
    lines.EndLine();
    lines.Line(std::string(35, ' ') + "ARRL Sweepstakes").EndLine();
    lines.Text("    Call Used: " + station.gOwnCall).At(kHeadRightColumn, "ARRL Section: ").Line(station.gOwnSection);
    lines.Text("    Sent: " + SentExchange(station)).At(kHeadRightColumn, ContestWords(station)).EndLine();
    lines.EndLine().EndLine();
    const ContactColumns& at = kPageColumns;
    lines.At(at.band, "Bnd").At(at.date, " Date").At(at.time, "Time").At(at.numberSent, " NrS");
    lines.At(at.numberReceived, "NrR").At(at.precedence, "P").At(at.call, "Stn Wrkd").At(at.check, "Ck");
    lines.At(at.section, "Section").At(at.score, " Points").EndLine();
    lines.EndLine();
    return lines.Lines();
}

}  // namespace

MergedLog MergeLog(std::string_view logText, std::string_view timeText, std::int32_t sectionCount,
                   const std::optional<SectionList>& chosenSections) {
    MergedLog merged;
    merged.sections.chosen = chosenSections;
    merged.sections.gSectionCount = sectionCount;
    FieldReader contactFields{logText};
    FieldReader timeFields{timeText};
    std::optional<Contact> contact = NextRecord(contactFields, ReadRecord);
    std::optional<TimeRecord> record = NextRecord(timeFields, ReadTimeRecord);
    while (contact || record) {
        if (contact && (!record || ContactGoesFirst(*contact, *record))) {
            merged.entries.emplace_back(CountContact(std::move(*contact), merged));
            contact = NextRecord(contactFields, ReadRecord);
        } else {
            merged.entries.emplace_back(std::move(*record));
            record = NextRecord(timeFields, ReadTimeRecord);
        }
    }
    return merged;
}

std::vector<std::string> LogReportFile(const MergedLog& merged) {
    ColumnWriter lines;
    for (const auto& entry : merged.entries) {
        if (const auto* contact = std::get_if<ReportedContact>(&entry)) {
            WriteContact(*contact, kFileColumns, lines);
        } else {
            lines.Line(TimeLine(std::get<TimeRecord>(entry)));
        }
    }
    return lines.Lines();
}

std::vector<PrintedPage> LogReportPages(const MergedLog& merged, const Preferences& station) {
    PageBreaker report{PageHead(station), kLinesPerPage};
    for (const auto& entry : merged.entries) {
        if (const auto* contact = std::get_if<ReportedContact>(&entry)) {
            ColumnWriter lines;
            WriteContact(*contact, kPageColumns, lines);
            report.Item(lines.Lines());
        } else {
            report.Item({"", " " + TimeLine(std::get<TimeRecord>(entry)), ""});
        }
    }
    return report.Pages();
}

}  // namespace tallyhut
