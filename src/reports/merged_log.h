#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "contest/contact_record.h"
#include "contest/preferences.h"
#include "contest/section_table.h"
#include "reports/printed_pages.h"

namespace tallyhut {

/// A record of nsonoff.txt.
struct TimeRecord {
    std::uint8_t on = 0;  ///< 1 where the operating time began, else it ended
    std::string date;
    std::string time;
    std::string duration;  ///< of the contest so far
};

/// A contact as the report lists it.
struct ReportedContact {
    Contact contact;
    std::string newSection = {};  ///< " 5 New!" for the fifth section; empty for one worked before
    std::int32_t score = 0;       ///< with this contact
};

/// Log.txt and nsonoff.txt in the order of their dates and times, counted anew on the way. Dates and times compare as
/// they are written, and of the same moment the time record is the first.
struct MergedLog {
    std::vector<std::variant<ReportedContact, TimeRecord>> entries;
    SectionTable sections;
    std::int32_t contacts = 0;
};

/// @param sectionCount    size of the section table
/// @param chosenSections  the list of the contest, where it has chosen one
/// Throws ValueError for a damaged record and LogFullError for more contacts than the tables hold.
MergedLog MergeLog(std::string_view logText, std::string_view timeText, std::int32_t sectionCount,
                   const std::optional<SectionList>& chosenSections = std::nullopt);

std::vector<std::string> LogReportFile(const MergedLog& merged);

/// The same on pages of 56 lines.
std::vector<PrintedPage> LogReportPages(const MergedLog& merged, const Preferences& station);

}  // namespace tallyhut
