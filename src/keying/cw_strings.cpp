#include "keying/cw_strings.h"

#include "keying/message_keys.h"

namespace tallyhut {

void CwStrings::frmCWStrings_Activate() {
    int row = 0;
    for (const MessageKey& key : kMessageKeys) {
        form.lblCWString(row++).SetCaption((messagesForm.*key.message).Text());
    }
}

void CwStrings::Row_DblClick(int row) {
    const auto key = static_cast<std::size_t>(row);
    if (messages.sender.gCWKeying != kKeyNone && key < kMessageKeys.size()) {
        messages.FKeyCW(kMessageKeys.at(key).code);
    }
}

void CwStrings::Command1_Click() {
    form.Minimise();
}

void CwStrings::Show() {
    form.Show();
    form.Restore();
}

void CwStrings::ShowMinimised() {
    form.Show();
    form.Minimise();
}

}  // namespace tallyhut
