#include "import/record_reader.h"

#include "values/text_lines.h"
#include "values/value_error.h"

namespace tallyhut {

ImportedLog ReadRecords(std::string_view text) {
    ImportedLog log;
    TextLines lines{text};
    while (!lines.AtEnd()) {
        const std::string_view line = lines.Take();
        FieldReader fields{line};
        if (fields.AtEnd()) {
            continue;
        }
        try {
            log.contacts.push_back({ReadRecord(fields), lines.Number()});
        } catch (const ValueError&) {
            log.notes.Add(lines.Number(), line, "Not understood: no record of a contact");
        }
    }
    return log;
}

}  // namespace tallyhut
