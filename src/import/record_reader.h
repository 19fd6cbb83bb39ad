#pragma once

#include <string_view>

#include "import/imported_log.h"

namespace tallyhut {

/// Reads a log of this program, record by record. A damaged one has a note; it takes no other with it.
ImportedLog ReadRecords(std::string_view text);

}  // namespace tallyhut
