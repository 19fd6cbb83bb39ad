#pragma once

#include <functional>
#include <vector>

#include "forms/frmCheckLog.h"
#include "log/contact_editing.h"
#include "platform/files.h"
#include "reports/log_check.h"
#include "support/directories.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// The last look at a log before it goes to the sponsor: a list of what would be objected to, from which a contact is
/// opened. It changes nothing by itself.
struct CheckLog {
    frmCheckLog& dialog;
    Desk& desk;
    const Contest& contest;
    ContactEditing& editing;
    const Files& files;
    const Directories& directories;

    /// The known calls that are in use.
    std::function<KnownCalls()> knownCalls = [] { return KnownCalls{{}}; };

    KnownCalls known = KnownCalls{{}};   ///< while the form is open
    std::vector<Finding> findings = {};  ///< in the rows of lstFindings

    /// Returns when the dialog has been closed.
    void mnuCheckLog_Click();

    // The form.
    void frmCheckLog_Load();
    void lstFindings_Click();
    /// Enter is cmdEdit.
    void lstFindings_KeyDown(int& KeyCode, int Shift);
    /// Opens the contact of the selected finding. Behind the edit the findings are taken anew, and the place in the
    /// list is the same.
    void cmdEdit_Click();

private:
    void ShowFindings(int row);
    std::vector<Finding> TakeFindings() const;
    std::optional<std::string> EntryFile() const;
    std::string CellText(std::size_t row, std::size_t column) const;
    /// Of the selected finding; 0 where it is of no contact.
    std::int32_t SelectedContact() const;
};

}  // namespace tallyhut
