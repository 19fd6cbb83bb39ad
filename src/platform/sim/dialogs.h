#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace tallyhut::sim {

/// Thrown where a scripted answer has no button on the box that it came to. No std::exception, so that the test fails.
struct AnswerWithoutButton {
    std::string box;  ///< its line in `boxes`
};

/// Dialogs answered by script. Each kind has a queue of answers, used up in the order in which the dialogs come up;
/// with an empty queue the operator closes the dialog.
struct Dialogs : tallyhut::Dialogs {
    std::deque<Answer> answers;
    std::deque<std::string> inputs;
    std::deque<std::optional<std::string>> files;  ///< for files and folders alike
    std::deque<std::optional<std::int32_t>> colours;

    /// Runs while a dialog is up, before it is answered: the timers that go on meanwhile.
    std::function<void()> onShow;

    /// What was shown, a line each in the order of coming up:
    /// `message "TITLE" "TEXT" YesNo Question`, `input "TITLE" "TEXT" "PRESET"`, `save "TITLE" "FILTER" "FOLDER"
    /// "NAME"` with ` prompt` behind it where an existing file is asked about, `open` and `folder` likewise, `colour
    /// 128`.
    std::vector<std::string> boxes;
    int beeps = 0;

    void Beep() override { ++beeps; }

protected:
    Answer DoShow(const MessageBox& box) override;
    std::optional<std::string> DoShow(const InputBox& box) override;
    std::optional<std::string> DoSaveFile(const FileRequest& request) override;
    std::optional<std::string> DoOpenFile(const FileRequest& request) override;
    std::optional<std::string> DoChooseFolder(const FileRequest& request) override;
    std::optional<std::int32_t> DoChooseColour(std::int32_t current) override;

private:
    /// Shows the box and gives it the next answer of its kind.
    template <class Reply>
    Reply Ask(std::string box, std::deque<Reply>& replies, Reply whenClosed);
    std::optional<std::string> AskForFile(const std::string& kind, const FileRequest& request);
};

}  // namespace tallyhut::sim
