#include "log/post_contest.h"

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {

void PostContest::mnuPostContest_Click() {
    const bool on = !form.mnuPostContest.Checked();
    form.mnuPostContest.SetChecked(on);
    form.lblPostConTime.SetVisible(on);
    form.txtPostConTime.SetVisible(on);
    form.lblPostConDate.SetVisible(on);
    form.txtPostConDate.SetVisible(on);
}

void PostContest::txtPostConTime_GotFocus() {
    form.txtPostConTime.Select(0, static_cast<int>(form.txtPostConTime.Text().size()));
}

/// The date is the operator's and not UTC's: a guess to be looked at.
void PostContest::txtPostConDate_GotFocus() {
    if (form.txtPostConDate.Text().empty()) {
        form.txtPostConDate.SetText(FormatDateTime(desk.clock.Now(), "YYYY/MM/DD"));
        form.txtPostConDate.Select(0, static_cast<int>(form.txtPostConDate.Text().size()));
    }
}

bool PostContest::KeyPress(int& KeyAscii, int lowest, int highest) {
    const int key = KeyAscii;
    if (key != kKeyBackspace && (key < lowest || key > highest)) {
        KeyAscii = 0;
    }
    if (key == ' ') {
        desk.SendKeys(KeyForCharacter(kKeyTab));
    }
    return key == kKeyEnter;
}

bool PostContest::txtPostConTime_KeyPress(int& KeyAscii) {
    return KeyPress(KeyAscii, '0', ':');
}

bool PostContest::txtPostConDate_KeyPress(int& KeyAscii) {
    return KeyPress(KeyAscii, '/', '9');
}

bool PostContest::Refuse(std::string_view text) {
    message.Write(text);
    desk.dialogs.Beep();
    return false;
}

bool PostContest::CheckDateAndTime() {
    TextBox& date = form.txtPostConDate;
    TextBox& time = form.txtPostConTime;
    const int year = desk.clock.Now().year;
    if (!ParseDate(date.Text(), year)) {
        return Refuse("Invalid date format!");
    }
    date.SetText(FormatDateText(date.Text(), "yyyy/mm/dd", year));
    const std::size_t length = time.Text().size();
    if (length >= 3 && length < 5 && IsNumeric(time.Text())) {
        time.SetText(time.Text().substr(0, length - 2) + ':' + time.Text().substr(length - 2));
    }
    if (!IsTime(time.Text())) {
        return Refuse("Invalid time format!");
    }
    time.SetText(FormatDateText(time.Text(), "hh:mm", year));
    return true;
}

}  // namespace tallyhut
