#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/contact_record.h"

namespace tallyhut {

/// Something that the operator should know of a line.
struct ImportNote {
    std::size_t line = 0;  ///< of the file, counted from 1
    std::string text;      ///< what stands there, or how it begins
    std::string finding;
};

/// The notes on a file. Of a file that is none of ours nearly every line is one, so only the first are kept, and all
/// are counted.
struct ImportNotes {
    static constexpr std::size_t kMostKept = 10'000;

    std::vector<ImportNote> kept;
    std::size_t count = 0;

    /// Keeps the beginning of the text, in characters that can be shown.
    void Add(std::size_t line, std::string_view text, std::string finding);
};

/// A text that a file tells as the section of its station.
struct OwnSection {
    std::string text;
    std::size_t line = 0;  ///< of the file, where it stands
};

/// What a file says of the station that made it; empty what it does not say.
struct ImportedStation {
    std::string call;
    std::string precedence;
    std::string check;
    std::vector<OwnSection> sections;  ///< the one that counts most first
    std::optional<bool> phone = {};    ///< none where neither the contest nor a contact says it
};

struct ImportedContact {
    Contact contact;
    std::size_t line = 0;            ///< of the file, where it begins
    std::optional<bool> phone = {};  ///< none where no mode is told
};

/// A file of another program, or of this one, as far as it was understood.
struct ImportedLog {
    ImportedStation station;
    std::vector<ImportedContact> contacts;    ///< in the order of the file
    std::vector<ImportedContact> incomplete;  ///< with a call, and without something that a contact must have
    ImportNotes notes;                        ///< on what is not among the contacts
    ImportNotes remarks = {};                 ///< on what is, and on the station
};

}  // namespace tallyhut
