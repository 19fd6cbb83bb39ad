#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/section_list.h"

namespace tallyhut {

/// A line of an entry's head.
struct HeadLine {
    std::string tag;    ///< "CATEGORY-MODE", in capitals
    std::string value;  ///< without the blanks around it

    bool operator==(const HeadLine&) const = default;
};

/// The lines of a Cabrillo file in front of its contacts, each tag once, as it comes first. What is no line of a tag, a
/// colon and a value is passed over.
///
/// @param file  the file or its beginning; CR LF, LF and a lone CR end a line
std::vector<HeadLine> ReadEntryHead(std::string_view file);

/// Why Cabrillo 3 does not know the line: its value is in none of its lists, or in no list of sections. Nothing for a
/// line that it knows, and for one whose value may be any text.
std::optional<std::string> ObjectionTo(const HeadLine& line, const SectionList& sections);

}  // namespace tallyhut
