#pragma once

#include <string>
#include <string_view>

#include "contest/contact_log.h"
#include "contest/preferences.h"
#include "contest/section_list.h"

namespace tallyhut {

/// What the export with the exchange says beside the log and the station.
struct AdifExchange {
    std::string title;      ///< of the program, with its version behind the last blank
    std::string writtenAt;  ///< UTC, yyyymmdd hhmmss
    std::string power;      ///< of the transmitter in watts; what is no number is left out
    std::string comment;    ///< of each record; empty leaves the field out
};

/// The whole file with the exchange of the contest, in plain ASCII: the head and one record for each contact. Whatever
/// a strict reader would refuse (a serial that is no number, a date that is none, a section that ADIF does not list) is
/// left out of its field.
///
/// @param sections     the list in force
/// @param presentYear  of a contact's date that has no year
std::string AdifExchangeText(const AdifExchange& details, const Preferences& station, const ContactLog& log,
                             const SectionList& sections, int presentYear);

/// The DXCC entity of a contact: that of its section, but for the islands that share a section and have entities of
/// their own, which the call tells; 0 where it is not known.
std::int32_t EntityOf(std::string_view call, std::string_view section, const SectionList& sections);

}  // namespace tallyhut
