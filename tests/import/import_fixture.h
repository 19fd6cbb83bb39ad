#pragma once

#include <string>
#include <vector>

#include "import/imported_log.h"
#include "values/number.h"

namespace tallyhut {

/// A contact's fields in one line, with the line of the file that it began in.
inline std::string Shown(const ImportedContact& imported) {
    const Contact& c = imported.contact;
    std::string shown = PlainText(imported.line) + ':';
    for (const std::string* field : {&c.Ns, &c.Nr, &c.P, &c.Call, &c.Ck, &c.Sec, &c.Date, &c.Time, &c.Bnd, &c.Frq}) {
        shown += ' ' + *field;
    }
    return shown;
}

inline std::vector<std::string> Shown(const std::vector<ImportedContact>& contacts) {
    std::vector<std::string> shown;
    for (const ImportedContact& contact : contacts) {
        shown.push_back(Shown(contact));
    }
    return shown;
}

/// In the order in which they count.
inline std::vector<std::string> Shown(const std::vector<OwnSection>& sections) {
    std::vector<std::string> shown;
    for (const OwnSection& section : sections) {
        shown.push_back(section.text);
    }
    return shown;
}

inline std::vector<std::string> Shown(const ImportNotes& notes) {
    std::vector<std::string> shown;
    for (const ImportNote& note : notes.kept) {
        shown.push_back(PlainText(note.line) + ": " + note.finding);
    }
    return shown;
}

}  // namespace tallyhut
