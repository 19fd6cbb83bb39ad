#pragma once

#include "platform/dialogs.h"

namespace tallyhut {

struct Desk;

/// The desktop's dialogs. While one is open it takes all keys and clicks, and timers and devices go on; it is shown
/// over the active window, or by itself where there is none yet.
class QtDialogs : public Dialogs {
public:
    /// The desk whose events run while a dialog is open; to be told before the first dialog.
    void Bind(Desk& desk) { desk_ = &desk; }

    void Beep() override;

protected:
    Answer DoShow(const MessageBox& box) override;
    std::optional<std::string> DoShow(const InputBox& box) override;
    std::optional<std::string> DoSaveFile(const FileRequest& request) override;
    std::optional<std::string> DoOpenFile(const FileRequest& request) override;
    std::optional<std::string> DoChooseFolder(const FileRequest& request) override;
    std::optional<std::int32_t> DoChooseColour(std::int32_t current) override;

private:
    Desk* desk_ = nullptr;
};

/// "Log Files (*.log) | *.log" as the desktop's file dialog wants it: "Log Files (*.log)"; pairs one behind the other.
std::string DesktopFilter(const std::string& told);

}  // namespace tallyhut
