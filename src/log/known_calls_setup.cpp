#include "log/known_calls_setup.h"

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

FileRequest Request(const std::string& title, const std::string& filter, const std::string& folder) {
    return {.title = title, .filter = filter, .folder = folder, .name = ""};
}

}  // namespace

void KnownCallsSetup::mnuKnownCalls_Click() {
    dialog.ShowModal();
    dialog.Unload();
}

void KnownCallsSetup::frmKnownCalls_Load() {
    ShowHistory();
    ShowSuperCheck();
}

void KnownCallsSetup::ShowHistory() {
    dialog.txtHistory.SetText(known.historyPath);
    dialog.chkHistory.SetValue(known.fillsIn);
    dialog.lblHistory.SetCaption(PlainText(known.history.Count()) + " calls");
}

void KnownCallsSetup::ShowSuperCheck() {
    dialog.txtScp.SetText(known.superCheckPath);
    dialog.chkScp.SetValue(known.showsCalls);
    dialog.lblScpCount.SetCaption(PlainText(known.superCheck.Count()) + " calls");
    display.Show();
}

template <typename Choose>
void KnownCallsSetup::TellingFailure(Choose choose) {
    const auto tell = [this](const std::exception& failure) {
        desk.dialogs.Show(
            {.title = "Known Calls", .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
    };
    try {
        choose();
    } catch (const PlatformError& failure) {
        tell(failure);
    } catch (const ValueError& damage) {
        tell(damage);
    }
}

/// A choice that could not be stored counts all the same.
bool KnownCallsSetup::TakeHistory(const std::string& path) {
    TellingFailure([this, &path] { known.ChooseHistory(path); });
    const bool isChosen = known.historyPath == path;
    if (isChosen) {
        ShowHistory();
    }
    return isChosen;
}

bool KnownCallsSetup::TakeSuperCheck(const std::string& path) {
    TellingFailure([this, &path] { known.ChooseSuperCheck(path); });
    const bool isChosen = known.superCheckPath == path;
    if (isChosen) {
        ShowSuperCheck();
    }
    return isChosen;
}

std::string KnownCallsSetup::PathIn(const TextBox& field) const {
    return WholePath(known.directories, Trim(field.Text()));
}

void KnownCallsSetup::txtHistory_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        TakeHistory(PathIn(dialog.txtHistory));
    }
}

void KnownCallsSetup::txtScp_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        TakeSuperCheck(PathIn(dialog.txtScp));
    }
}

void KnownCallsSetup::cmdHistory_Click() {
    const auto chosen =
        desk.dialogs.OpenFile(Request("Call History", "Call Histories (*.txt;*.csv)|*.txt;*.csv|All Files (*)|*",
                                      known.directories.WorkingDirectory));
    if (chosen) {
        TakeHistory(*chosen);
    }
}

void KnownCallsSetup::cmdScp_Click() {
    const auto chosen =
        desk.dialogs.OpenFile(Request("Super Check Partial", "Lists of Calls (*.scp;*.SCP)|*.scp;*.SCP|All Files (*)|*",
                                      known.directories.WorkingDirectory));
    if (chosen) {
        TakeSuperCheck(*chosen);
    }
}

void KnownCallsSetup::chkHistory_Click() {
    known.SetFillsIn(dialog.chkHistory.Value());
}

void KnownCallsSetup::chkScp_Click() {
    known.SetShowsCalls(dialog.chkScp.Value());
    display.Show();
}

void KnownCallsSetup::cmdDone_Click() {
    const std::string history = PathIn(dialog.txtHistory);
    const std::string superCheck = PathIn(dialog.txtScp);
    const bool historyStands = history == known.historyPath || TakeHistory(history);
    const bool superCheckStands = superCheck == known.superCheckPath || TakeSuperCheck(superCheck);
    if (historyStands && superCheckStands) {
        dialog.Hide();
    }
}

}  // namespace tallyhut
