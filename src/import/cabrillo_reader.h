#pragma once

#include <string_view>

#include "import/imported_log.h"

namespace tallyhut {

/// Reads an entry file of any program, in whatever columns: the words of a line count. Each line that is no contact, no
/// tag of the format and no private one has a note, and so has each X-QSO line, which is left out.
ImportedLog ReadCabrillo(std::string_view text);

}  // namespace tallyhut
