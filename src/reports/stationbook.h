#pragma once

#include <string>

#include "forms/Form1.h"
#include "log/contact_log.h"

namespace tallyhut {

/// The log as the general-purpose logger imports it: sixteen fields a contact, comma-separated.
std::string StationbookText(const ContactLog& log, bool phone);

/// What the list shows, its headings first and the oldest contact next, as lines of cells with tabs between them.
std::string ListAsText(const ListView& list);

}  // namespace tallyhut
