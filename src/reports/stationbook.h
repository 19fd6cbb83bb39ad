#pragma once

#include <string>

#include "contest/contact_log.h"
#include "contest/section_table.h"

namespace tallyhut {

/// The log as the general-purpose logger imports it: sixteen fields a contact, comma-separated.
///
/// @param sections  the list of the contest; none where it has chosen none
std::string StationbookText(const ContactLog& log, bool phone, const SectionList* sections = nullptr);

}  // namespace tallyhut
