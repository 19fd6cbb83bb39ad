#pragma once

#include <optional>

#include "log/section_grid.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The list of a contest's own sections, in its folder.
inline constexpr const char* kSectionsFile = "Sections.txt";

/// Which sections the contest has: those of Sections.txt in its folder or, where there is none, ToldSections.
struct SectionChoice {
    Files& files;
    const Directories& directories;
    Dialogs& dialogs;
    Contest& contest;
    SectionGrid& grid;

    /// Puts in force what the folder says. A file that is damaged or cannot be read is told with line and reason, and
    /// ToldSections stand.
    void TakeFromFolder();
    /// Puts a list in force, none for ToldSections, and shows its sections, none of them worked: whoever calls it lays
    /// out the form and reads the log again.
    void PutInForce(std::optional<SectionList> list);

private:
    std::optional<SectionList> ListOfFolder();
    void TellRefused(const std::string& path, std::string_view why);
};

}  // namespace tallyhut
