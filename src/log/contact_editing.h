#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "forms/frmEditCon.h"
#include "log/contact_list.h"
#include "log/log_guard.h"
#include "log/panel.h"

namespace tallyhut {

/// A contact before an edit and behind it.
struct ContactChange {
    Contact before;
    Contact after;
};

/// The only ways to change a logged contact: the edit form, and deleting. Each changes the tables,
/// rewrites the log whole and reloads it. A log that cannot be written is a LogWriteError and nobody's business here.
struct ContactEditing {
    Panel& panel;
    frmEditCon& dialog;
    Contest& contest;
    LogGuard& guard;
    ContactList& list;

    // What stands on the disk now; run last.
    std::function<void(const Contact& before, std::int32_t row)> edited = [](const Contact&, std::int32_t) {};
    std::function<void(const Contact& contact)> deleted = [](const Contact&) {};

    std::int32_t editedRow = 0;                ///< the log row in the edit form
    std::optional<ContactChange> stored = {};  ///< by the edit form, since it was opened

    /// Shows the contact of a log row in the edit form; returns when that has been closed and the log rewritten.
    void Edit(std::int32_t row);

    // The main form.
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdList_Click();
    void ListView1_Click();
    void ListView1_MouseDown(MouseButton button);
    void ListView1_ColumnClick(int column);
    /// Enter edits the selected contact and Delete asks whether to delete it. Either comes back to the list, where the
    /// buttons lead to the entry row.
    void ListView1_KeyDown(int& KeyCode, int Shift);

    // The edit form.
    void frmEditCon_Load();
    /// Of txtEditNum, txtEditPre, txtEditCall, txtEditCk, txtEditSec and txtEditBnd.
    void TextField_KeyPress(int& KeyAscii);
    void txtEditNumSent_KeyPress(int& KeyAscii);
    void txtEditDate_KeyPress(int& KeyAscii);
    void txtEditTime_KeyPress(int& KeyAscii);
    void txtEditDate_LostFocus();
    void txtEditTime_LostFocus();
    void cmdDone_Click();
    void cmdDeleteDupe_Click();

private:
    /// Asks first.
    void Delete(std::int32_t row);
    bool DoneOnEnter(int& KeyAscii);
    void InTheList(void (ContactEditing::*step)());
    bool HasDuplicate();
    /// The code of what stands in txtEditSec: an alias is never logged.
    std::string_view SectionCode() const;
    bool HasSection();
    void Store();
    void TellOfEdit(std::int32_t row, const ContactChange& change) const;
    void TellOfDeletion(const Contact& contact) const;
    void RewriteAndReload();
};

}  // namespace tallyhut
