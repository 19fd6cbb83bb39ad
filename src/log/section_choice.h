#pragma once

#include <optional>
#include <string>

#include "log/section_grid.h"
#include "log/shipped_sections.h"
#include "platform/dialogs.h"
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

    std::string inForce = {};  ///< the file that is in force, as it stands; empty for ToldSections

    std::string Path() const { return WorkingFile(directories, kSectionsFile); }
    /// Whether the folder has a list, whatever stands under its name. Throws PlatformError when that cannot be told.
    bool FolderHasList() const { return files.FileExists(Path()) || files.FolderExists(Path()); }
    /// Puts in force what the folder says, and shows its sections, none of them worked: whoever calls it lays out the
    /// form and reads the log again. A file that is damaged or cannot be read is told with line and reason, and
    /// ToldSections stand.
    void TakeFromFolder();
    /// Gives the folder a list in one step, or takes its list away. Throws PlatformError, and the list is what the
    /// folder says all the same.
    void Write(const ShippedList& list);

private:
    std::optional<SectionList> ListOfFolder();
    void TellRefused(const std::string& path, std::string_view why);
};

}  // namespace tallyhut
