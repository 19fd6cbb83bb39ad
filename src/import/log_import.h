#pragma once

#include <string>
#include <vector>

#include "contest/contest.h"
#include "forms/frmImport.h"
#include "import/imported_log.h"
#include "import/log_reading.h"
#include "import/new_contest.h"
#include "platform/machine.h"
#include "support/directories.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Brings the log of another program into a folder of its own, counts it as this program does, and reports what it did
/// not take. The contest that is open stays open and as it is.
struct LogImport {
    frmImport& dialog;
    Desk& desk;
    const Directories& directories;
    const Contest& contest;
    Machine& machine;
    const LogReading& reading;

    std::string summary = {};            ///< of the report that is shown
    std::vector<ImportNote> lines = {};  ///< its rows

    /// Asks for the file and the folder; what fails is told in a box, and nothing is written then.
    void mnuImport_Click();

    // The form.
    void frmImport_Load();
    void cmdDone_Click();

private:
    void Import(const std::string& path);
    /// Empty where the operator chose none. Throws PlatformError where it may not be taken.
    std::string AskFolder();
    SectionTable SectionsFor(const std::string& folder) const;
    Preferences PreferencesFor(const std::string& folder, const ImportedStation& station,
                               const std::string& ownSection) const;
    std::string SectionsFile(const std::string& folder) const;
    void Report(std::string told, ImportNotes notes);
};

}  // namespace tallyhut
