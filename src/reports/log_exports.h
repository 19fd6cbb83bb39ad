#pragma once

#include <functional>
#include <string>

#include "contest/contest.h"
#include "forms/Form1.h"
#include "platform/files.h"
#include "support/directories.h"
#include "toolkit/desk.h"
#include "values/format.h"

namespace tallyhut {

/// The ways of the log into other programs. None of them changes it.
struct LogExports {
    Form1& form;
    Desk& desk;
    const Directories& directories;
    const Contest& contest;
    Files& files;
    std::string shortDate{kShortDate};  ///< the machine's picture of a date

    /// The whole log as ADIF, in a file that the operator chooses.
    void expADIF_Click();
    /// The same with the exchange of the contest, as other loggers and confirmations take it.
    void expADIFX_Click();
    /// The whole log for the general-purpose logger. Throws PlatformError.
    void mnuExport_Click();
    /// What the list shows, for a spreadsheet.
    void mnuCopyListtoClipboard_Click();

private:
    /// Asks for power, comment and file; writes what the function makes of the answers.
    void ExportAdif(const std::function<std::string(const std::string& power, const std::string& comment)>& textOf);
};

}  // namespace tallyhut
