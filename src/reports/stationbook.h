#pragma once

#include <string>

#include "contest/contact_log.h"

namespace tallyhut {

/// The log as the general-purpose logger imports it: sixteen fields a contact, comma-separated.
std::string StationbookText(const ContactLog& log, bool phone);

}  // namespace tallyhut
