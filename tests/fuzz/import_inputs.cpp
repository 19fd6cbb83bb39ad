#include "tests/fuzz/import_inputs.h"

#include <algorithm>
#include <string>

#include "contest/told_sections.h"
#include "import/adif_reader.h"
#include "import/cabrillo_reader.h"
#include "import/gathered_history.h"
#include "import/log_text.h"
#include "import/record_reader.h"
#include "values/text_lines.h"
#include "values/utf8.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestShown = 100;

bool ComesBack(const Contact& contact) {
    const std::string record = WriteRecord(contact);
    FieldReader fields{record};
    return ReadRecord(fields) == contact && fields.AtEnd();
}

bool AreWithin(const ImportNotes& notes, std::size_t lines) {
    return notes.kept.size() <= notes.count && std::ranges::all_of(notes.kept, [lines](const ImportNote& note) {
               return note.line >= 1 && note.line <= lines && note.text.size() <= kLongestShown;
           });
}

bool IsSound(const ImportedLog& log, std::size_t lines) {
    return AreWithin(log.notes, lines) && std::ranges::all_of(log.contacts, [lines](const ImportedContact& imported) {
               return imported.line >= 1 && imported.line <= lines && ComesBack(imported.contact);
           });
}

/// The history has no row with more or fewer columns than it names.
bool MakesRows(const ImportedLog& log) {
    GatheredHistory history;
    history.Add(log, ToldSections(), 2026);
    const std::string text = history.Text("");
    TextLines lines{text};
    lines.Take();
    lines.Take();
    while (!lines.AtEnd()) {
        if (std::ranges::count(lines.Take(), ',') != 2) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool TakesImportInput(std::string_view bytes) {
    std::string room;
    const std::string_view text = PlainBytesOf(bytes, room);
    FormatOf(text);
    const auto ends = std::ranges::count_if(text, [](char c) { return c == '\r' || c == '\n'; });
    const std::size_t lines = static_cast<std::size_t>(ends) + 1;
    for (const auto read : {ReadCabrillo, ReadAdif, ReadRecords}) {
        const ImportedLog log = read(text);
        if (!IsSound(log, lines) || !MakesRows(log)) {
            return false;
        }
    }
    return true;
}

}  // namespace tallyhut
