#include "log/post_contest.h"

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {

void PostContest::mnuPostContest_Click() {
    const bool on = !panel.form.mnuPostContest.Checked();
    panel.form.mnuPostContest.SetChecked(on);
    panel.form.lblPostConTime.SetVisible(on);
    panel.form.txtPostConTime.SetVisible(on);
    panel.form.lblPostConDate.SetVisible(on);
    panel.form.txtPostConDate.SetVisible(on);
}

void PostContest::txtPostConTime_GotFocus() {
    panel.form.txtPostConTime.Select(0, static_cast<int>(panel.form.txtPostConTime.Text().size()));
}

/// The date is the operator's and not UTC's: a guess to be looked at.
void PostContest::txtPostConDate_GotFocus() {
    if (panel.form.txtPostConDate.Text().empty()) {
        panel.form.txtPostConDate.SetText(FormatDateTime(panel.desk.clock.Now(), "YYYY/MM/DD"));
        panel.form.txtPostConDate.Select(0, static_cast<int>(panel.form.txtPostConDate.Text().size()));
    }
}

bool PostContest::KeyPress(int& KeyAscii, int lowest, int highest) {
    const int key = KeyAscii;
    if (key != kKeyBackspace && (key < lowest || key > highest)) {
        KeyAscii = 0;
    }
    if (key == ' ') {
        panel.desk.SendKeys(KeyForCharacter(kKeyTab));
    }
    return key == kKeyEnter;
}

bool PostContest::txtPostConTime_KeyPress(int& KeyAscii) {
    return KeyPress(KeyAscii, '0', ':');
}

bool PostContest::txtPostConDate_KeyPress(int& KeyAscii) {
    return KeyPress(KeyAscii, '/', '9');
}

bool PostContest::Refuse(TextBox& field, std::string_view text) {
    field.SetRefused(true);
    panel.message.Refuse(text);
    panel.desk.dialogs.Beep();
    return false;
}

bool PostContest::CheckDateAndTime() {
    TextBox& date = panel.form.txtPostConDate;
    TextBox& time = panel.form.txtPostConTime;
    const int year = panel.desk.clock.Now().year;
    if (!ParseDate(date.Text(), year)) {
        return Refuse(date, "Invalid date format!");
    }
    date.SetText(FormatDateText(date.Text(), "yyyy/mm/dd", year));
    const std::size_t length = time.Text().size();
    if (length >= 3 && length < 5 && IsNumeric(time.Text())) {
        time.SetText(time.Text().substr(0, length - 2) + ':' + time.Text().substr(length - 2));
    }
    if (!IsTime(time.Text())) {
        return Refuse(time, "Invalid time format!");
    }
    time.SetText(FormatDateText(time.Text(), "hh:mm", year));
    return true;
}

}  // namespace tallyhut
