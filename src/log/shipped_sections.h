#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "contest/section_list.h"
#include "platform/files.h"

namespace tallyhut {

/// The name of the list that a contest has without choosing one: ToldSections.
inline constexpr std::string_view kToldSectionsName = "2014";

/// A list that comes with the program.
struct ShippedList {
    std::string name;  ///< the first year of it
    std::string file;  ///< as it stands on the disk
    SectionList list;
};

/// The lists that come with the program, each a file of its own in a folder.
struct ShippedSections {
    const Files& files;
    std::string folder;

    /// The newest first. What cannot be read is left out: the program logs without it.
    std::vector<ShippedList> Lists() const;
};

/// The name of the list whose file this is, byte for byte; empty for none.
std::string NameOfFile(const std::vector<ShippedList>& shipped, std::string_view file);

/// What an operator should know who has typed a code that only another of these lists has, and where to choose that
/// list; empty for a code that none has.
std::string HintOn(std::string_view code, const std::vector<ShippedList>& shipped);

/// What the command line asks for: the name of a shipped list, or the path of a file.
///
/// @return the content of Sections.txt for it; nothing where it wants none, for ToldSections. Throws ValueError, in one
///         line, for what is neither or damaged.
std::optional<std::string> SectionsNamed(const Files& files, const std::vector<ShippedList>& shipped,
                                         const std::string& nameOrPath);

}  // namespace tallyhut
