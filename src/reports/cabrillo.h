#pragma once

#include <string>
#include <string_view>

#include "contest/contact_log.h"
#include "contest/preferences.h"
#include "reports/column_writer.h"

namespace tallyhut {

/// What the entry's head says beside the station and the log. The texts are the values of their lines.
struct CabrilloEntry {
    std::string createdBy;
    std::string_view categoryOperator;  ///< empty leaves the line out
    std::string_view power;
    bool assisted = false;
    bool schoolClub = false;
    std::string operators;  ///< empty for the own call
    std::string club;
    std::string name;
    std::string addressLine1;
    std::string addressLine2;
    std::string eMail;  ///< empty leaves the line out
    std::string soapbox;
    bool asCabrillo3Lists = false;  ///< tags and values of version 3 alone, where the head else keeps older ones
};

/// The whole entry file, Cabrillo 3.0, line by line, contacts in the order of the log.
///
/// @param lines  takes the lines; where the claimed score fails, those before it stand there
/// @param presentYear  of a contact's date that has no year
/// Throws ValueError when the claimed score is beyond 32 bits.
void WriteCabrillo(const CabrilloEntry& entry, const Preferences& station, const ContactLog& log, int sectionsWorked,
                   int presentYear, ColumnWriter& lines);

}  // namespace tallyhut
