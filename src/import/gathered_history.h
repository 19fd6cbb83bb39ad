#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "contest/section_list.h"
#include "import/imported_log.h"

namespace tallyhut {

/// The check and section of each call that the logs of some years hold. Of two contacts with a call the newer one
/// counts, and of the same moment the one that came later; a contact that lacks one of the two leaves the older one's.
class GatheredHistory {
public:
    /// Takes the contacts of a log, the incomplete ones too. An alias of the list becomes its code.
    ///
    /// @param presentYear  of a contact's date that has no year
    void Add(const ImportedLog& log, const SectionList& sections, int presentYear);

    /// Calls of which a check or a section is known.
    std::size_t Count() const { return calls_.size(); }

    /// The file: the line that names its columns, the comment, then a line each call, in the order of the calls.
    std::string Text(std::string_view comment) const;

private:
    struct Known {
        std::string text;
        std::string moment;  ///< of the contact, in a form that sorts
    };
    struct Row {
        Known section;
        Known check;
    };

    void AddContact(const Contact& contact, const SectionList& sections, int presentYear);
    static void Keep(Known& known, std::string_view text, const std::string& moment);

    std::map<std::string, Row> calls_;
};

}  // namespace tallyhut
