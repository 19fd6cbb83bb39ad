#pragma once

#include <string>
#include <string_view>

#include "contest/contact_log.h"
#include "contest/section_table.h"

namespace tallyhut {

/// What the records say beside the log, and what the head says of the export.
struct AdifExport {
    std::string title;       ///< of the program, with its version behind the last blank
    std::string exportedAt;  ///< date and time for people
    std::string power;       ///< of the transmitter; empty leaves the field out
    std::string comment;     ///< of each record; empty leaves the field out
    bool phone = false;
    const SectionList* sections = nullptr;  ///< the list of the contest; none where it has chosen none
};

/// The whole file: the head and one record for each contact. The exchange of the contest has no fields in it.
///
/// @param presentYear  of a contact's date that has no year
std::string AdifText(const AdifExport& details, const ContactLog& log, int presentYear);

/// Four digits of hours and minutes from a contact's time: "21:04:33" is "2104", "5" is "0005".
std::string AdifTime(std::string_view time);

}  // namespace tallyhut
