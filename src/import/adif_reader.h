#pragma once

#include <string_view>

#include "import/imported_log.h"

namespace tallyhut {

/// Reads the records of an ADIF file. Lengths count bytes, and nothing that one says is believed beyond the end of its
/// record: a length that is none or reaches too far costs that record alone. A record without a part of the contact, or
/// with one that is none, has a note.
ImportedLog ReadAdif(std::string_view text);

}  // namespace tallyhut
