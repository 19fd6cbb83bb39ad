#pragma once

#include <string>

#include "values/text_file.h"

namespace tallyhut {

/// One logged contact, every field as text.
struct Contact {
    std::string Ns;    ///< serial number sent
    std::string Nr;    ///< serial number received
    std::string P;     ///< precedence received
    std::string Call;  ///< call sign worked
    std::string Ck;    ///< check received
    std::string Sec;   ///< section received
    std::string Date;  ///< UTC, yyyy/mm/dd
    std::string Time;  ///< UTC, hh:mm:ss, or hh:mm for one entered afterwards
    std::string Bnd;   ///< band in metres
    std::string Frq;   ///< frequency in MHz, or empty

    bool operator==(const Contact&) const = default;
};

/// One line of Log.txt, its line end included.
std::string WriteRecord(const Contact& contact);

/// Writes the same behind what the writer holds.
void WriteRecord(const Contact& contact, RecordWriter& writer);

/// Takes one record; throws ValueError when a field is missing or damaged.
Contact ReadRecord(FieldReader& fields);

/// The same into a contact, which is partly read when it throws.
void ReadRecord(FieldReader& fields, Contact& contact);

/// The exchange as the operator heard it, for a message about a contact that could not be kept.
std::string ExchangeText(const Contact& contact);

}  // namespace tallyhut
