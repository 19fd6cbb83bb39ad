#pragma once

#include "forms/frmKnownCalls.h"
#include "log/super_check_display.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Where the operator sees and chooses the files of known calls. A choice counts and is stored at once; a file that
/// cannot be taken is told in a box, and the choice before it stands.
struct KnownCallsSetup {
    frmKnownCalls& dialog;
    Desk& desk;
    KnownCallFiles& known;
    SuperCheckDisplay& display;

    /// Returns when the dialog has been closed.
    void mnuKnownCalls_Click();

    // The form. Enter in a field takes the file whose path stands there, and so does Done where it is another one; a
    // field that is emptied chooses none.
    void frmKnownCalls_Load();
    void txtHistory_KeyPress(int& KeyAscii);
    void txtScp_KeyPress(int& KeyAscii);
    void cmdHistory_Click();
    void cmdScp_Click();
    void chkHistory_Click();
    void chkScp_Click();
    void cmdDone_Click();

private:
    /// False where another file is chosen still.
    bool TakeHistory(const std::string& path);
    bool TakeSuperCheck(const std::string& path);
    template <typename Choose>
    void TellingFailure(Choose choose);
    std::string PathIn(const TextBox& field) const;
    void ShowHistory();
    void ShowSuperCheck();
};

}  // namespace tallyhut
