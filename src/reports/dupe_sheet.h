#pragma once

#include <string>
#include <vector>

#include "contest/contact_log.h"
#include "contest/preferences.h"
#include "reports/printed_pages.h"

namespace tallyhut {

/// The calls of the log by call area, the first digit of a call, those without a digit first; within an area in
/// ascending order of their bytes.
std::vector<std::string> CallsByArea(const ContactLog& log);

/// One call a line, and the totals.
std::vector<std::string> DupeFile(const std::vector<std::string>& calls, int sectionsWorked);

/// The same on pages of 56 lines.
std::vector<PrintedPage> DupePages(const std::vector<std::string>& calls, int sectionsWorked,
                                   const Preferences& station);

}  // namespace tallyhut
