#include "log/contact_editing.h"

#include <algorithm>
#include <array>
#include <utility>

#include "log/entry_flow.h"

namespace tallyhut {
namespace {

/// What the edit form shows of a contact. The frequency is not among it and stays as it is.
struct EditField {
    TextBox frmEditCon::*box;
    std::string Contact::*field;
};

constexpr std::array kEditFields{
    EditField{&frmEditCon::txtEditNumSent, &Contact::Ns}, EditField{&frmEditCon::txtEditNum, &Contact::Nr},
    EditField{&frmEditCon::txtEditPre, &Contact::P},      EditField{&frmEditCon::txtEditCall, &Contact::Call},
    EditField{&frmEditCon::txtEditCk, &Contact::Ck},      EditField{&frmEditCon::txtEditSec, &Contact::Sec},
    EditField{&frmEditCon::txtEditDate, &Contact::Date},  EditField{&frmEditCon::txtEditTime, &Contact::Time},
    EditField{&frmEditCon::txtEditBnd, &Contact::Bnd},
};

constexpr int kDoubleQuote = '"';

const MessageBox kAreYouSureBox{
    .title = "Are you sure?", .text = "Are you sure?", .buttons = Buttons::YesNo, .icon = Icon::Question};
const MessageBox kInvalidTimeBox{.title = "Invalid Time Format!",
                                 .text = "You have entered an invalid time format!",
                                 .buttons = Buttons::OK,
                                 .icon = Icon::Exclamation};
const MessageBox kInvalidDateBox{.title = "Invalid Date Format!",
                                 .text = "You have entered an invalid date format!",
                                 .buttons = Buttons::OK,
                                 .icon = Icon::Exclamation};

void Cap2(int& KeyAscii) {
    Capital(KeyAscii);
}

/// Esc types nothing: it goes on and closes the form, as it does from every field.
void AcceptOnly(int& KeyAscii, int first, int last) {
    const bool accepted = KeyAscii == kKeyBackspace || KeyAscii == kKeyEsc || (KeyAscii >= first && KeyAscii <= last);
    if (!accepted) {
        KeyAscii = 0;
    }
}

}  // namespace

void ContactEditing::cmdEdit_Click() {
    guard.OpenIfUnopened();
    if (const std::int32_t row = list.LogRowAt(panel.form.ListView1.Row()); row != 0) {
        Edit(row);
    }
}

void ContactEditing::Edit(std::int32_t row) {
    editedRow = row;
    stored.reset();
    dialog.ShowModal();
    list.ListContacts();
    panel.fields.HideRowButtons();
    RewriteAndReload();
    if (const std::optional<ContactChange> change = std::exchange(stored, std::nullopt)) {
        TellOfEdit(row, *change);
    }
}

/// Where another hand has changed the file the edit may have come to nothing.
void ContactEditing::TellOfEdit(std::int32_t row, const ContactChange& change) const {
    const ContactLog& log = contest.log;
    if (change.before != change.after && row <= log.gContactCount() && log.Row(row) == change.after) {
        edited(change.before, row);
    }
}

void ContactEditing::TellOfDeletion(const Contact& contact) const {
    for (const CallOrder::Place& same : contest.log.CallsOf(contact.Call)) {
        if (contest.log.Row(same.row) == contact) {
            return;
        }
    }
    deleted(contact);
}

void ContactEditing::cmdDelete_Click() {
    guard.OpenIfUnopened();
    if (const std::int32_t row = list.LogRowAt(panel.form.ListView1.Row()); row != 0) {
        Delete(row);
    }
}

void ContactEditing::Delete(std::int32_t row) {
    const Answer answer = panel.desk.dialogs.Show(kAreYouSureBox);
    panel.fields.HideRowButtons();
    if (answer != Answer::Yes) {
        return;
    }
    const Contact contact = contest.log.Row(row);
    contest.log.Remove(row);
    RewriteAndReload();
    TellOfDeletion(contact);
}

void ContactEditing::RewriteAndReload() {
    guard.Rewrite();
    panel.fields.First().SetFocus();
}

void ContactEditing::cmdList_Click() {
    const bool listsAll = list.gListAll == 1;
    panel.form.cmdList.SetCaption(listsAll ? "Last 20" : "All");
    list.gListAll = listsAll ? 0 : 1;
    list.ListContacts();
    panel.fields.First().SetFocus();
}

void ContactEditing::ListView1_Click() {
    if (panel.form.ListView1.RowCount() > 0) {
        panel.form.cmdEdit.SetVisible(true);
        panel.form.cmdDelete.SetVisible(true);
    }
}

void ContactEditing::ListView1_MouseDown(MouseButton button) {
    if (button == kRightButton && panel.form.ListView1.RowCount() > 0) {
        cmdEdit_Click();
    }
}

void ContactEditing::ListView1_ColumnClick(int column) {
    panel.form.ListView1.SortOnce(static_cast<std::size_t>(column - 1));
}

void ContactEditing::ListView1_KeyDown(int& KeyCode, int Shift) {
    if (Shift != 0 || (KeyCode != kKeyEnter && KeyCode != kKeyDelete)) {
        return;
    }
    InTheList(KeyCode == kKeyEnter ? &ContactEditing::cmdEdit_Click : &ContactEditing::cmdDelete_Click);
    KeyCode = 0;
}

void ContactEditing::InTheList(void (ContactEditing::*step)()) {
    ListView& rows = panel.form.ListView1;
    const int row = rows.Row();
    if (list.LogRowAt(row) == 0) {
        return;
    }
    (this->*step)();
    if (rows.RowCount() > 0) {
        rows.SelectRow(std::min(row, static_cast<int>(rows.RowCount()) - 1));
        rows.GiveFocusBack();  // the entry row was only passed through: nothing in it has been left
    }
}

void ContactEditing::frmEditCon_Load() {
    if (editedRow == 0) {
        return;
    }
    for (const EditField& edit : kEditFields) {
        (dialog.*edit.box).SetText(contest.log.Row(editedRow).*edit.field);
    }
}

bool ContactEditing::DoneOnEnter(int& KeyAscii) {
    if (KeyAscii != kKeyEnter) {
        return false;
    }
    KeyAscii = 0;
    cmdDone_Click();
    return true;
}

void ContactEditing::TextField_KeyPress(int& KeyAscii) {
    if (DoneOnEnter(KeyAscii)) {
        return;
    }
    if (KeyAscii == kDoubleQuote) {
        KeyAscii = 0;
    }
    Cap2(KeyAscii);
}

void ContactEditing::txtEditNumSent_KeyPress(int& KeyAscii) {
    if (!DoneOnEnter(KeyAscii)) {
        AcceptOnly(KeyAscii, '0', '9');
    }
}

void ContactEditing::txtEditDate_KeyPress(int& KeyAscii) {
    if (!DoneOnEnter(KeyAscii)) {
        AcceptOnly(KeyAscii, '/', '9');
    }
}

void ContactEditing::txtEditTime_KeyPress(int& KeyAscii) {
    if (!DoneOnEnter(KeyAscii)) {
        AcceptOnly(KeyAscii, '0', ':');
    }
}

void ContactEditing::txtEditDate_LostFocus() {
    if (!IsDate(dialog.txtEditDate.Text())) {
        panel.desk.dialogs.Show(kInvalidDateBox);
        dialog.txtEditDate.GiveFocusBack();
    }
}

void ContactEditing::txtEditTime_LostFocus() {
    if (!IsTime(dialog.txtEditTime.Text())) {
        panel.desk.dialogs.Show(kInvalidTimeBox);
        dialog.txtEditTime.GiveFocusBack();
    }
}

void ContactEditing::cmdDone_Click() {
    if (!IsTime(dialog.txtEditTime.Text())) {
        panel.desk.dialogs.Beep();
        panel.desk.dialogs.Show(kInvalidTimeBox);
        dialog.txtEditTime.SetFocus();
        return;
    }
    if (!IsDate(dialog.txtEditDate.Text())) {
        panel.desk.dialogs.Beep();
        panel.desk.dialogs.Show(kInvalidDateBox);
        dialog.txtEditDate.SetFocus();
        return;
    }
    if (dialog.txtEditNumSent.Text().empty()) {
        dialog.txtEditNumSent.SetText("0");
    }
    const bool duplicate = HasDuplicate();
    const bool validSection = HasSection();
    if (!duplicate && validSection) {
        Store();
        dialog.Unload();
    }
}

bool ContactEditing::HasDuplicate() {
    bool duplicate = false;
    for (const CallOrder::Place& same : contest.log.CallsOf(dialog.txtEditCall.Text())) {
        if (same.row != editedRow) {
            duplicate = true;
            dialog.Label1.SetVisible(true);
            dialog.cmdDeleteDupe.SetVisible(true);
            panel.desk.dialogs.Beep();
        }
    }
    return duplicate;
}

std::string_view ContactEditing::SectionCode() const {
    return contest.sections.List().CodeOf(dialog.txtEditSec.Text());
}

bool ContactEditing::HasSection() {
    // Of another list that the contest had before: the rest of such a contact can be edited all the same.
    const bool isAsLogged = contest.sections.Chosen() != nullptr && SectionCode() == contest.log.Row(editedRow).Sec;
    if (contest.sections.Find(SectionCode()) != 0 || isAsLogged) {
        return true;
    }
    dialog.Label2.SetVisible(true);
    panel.desk.dialogs.Beep();
    return false;
}

void ContactEditing::Store() {
    stored = ContactChange{.before = contest.log.Row(editedRow), .after = {}};
    contest.log.Change(editedRow, [this](Contact& contact) {
        for (const EditField& edit : kEditFields) {
            contact.*edit.field = (dialog.*edit.box).Text();
        }
        contact.Sec = SectionCode();
    });
    stored->after = contest.log.Row(editedRow);
}

void ContactEditing::cmdDeleteDupe_Click() {
    dialog.Unload();
    Delete(editedRow);
}

}  // namespace tallyhut
