#pragma once

#include <functional>
#include <optional>
#include <string>

#include "console/command_words.h"
#include "console/json_output.h"
#include "platform/dialogs.h"

namespace tallyhut {

/// The machine's dialogs, asked of the driver: each is an event, and waits for an `answer`.
class ConsoleDialogs : public Dialogs {
public:
    explicit ConsoleDialogs(JsonOutput& out) : out_{out} {}

    /// Runs the events of the program until the claim holds.
    std::function<void(const std::function<bool()>& done)> runDialog;

    void Beep() override;

    /// The kind of the dialog that waits, "msgbox"; empty while none does.
    const std::string& Waiting() const { return waiting_; }
    /// Throws ConsoleError for a reply that the dialog cannot take; it goes on waiting.
    void TakeAnswer(const CommandWord& reply);
    /// As if the dialog were closed without an answer.
    void Cancel();

protected:
    Answer DoShow(const MessageBox& box) override;
    std::optional<std::string> DoShow(const InputBox& box) override;
    std::optional<std::string> DoSaveFile(const FileRequest& request) override;
    std::optional<std::string> DoOpenFile(const FileRequest& request) override;
    std::optional<std::string> DoChooseFolder(const FileRequest& request) override;
    std::optional<std::int32_t> DoChooseColour(std::int32_t current) override;

private:
    /// Takes a reply, or throws ConsoleError.
    using Take = std::function<void(const CommandWord& reply)>;

    void Ask(Json event, const std::string& kind, const Take& take);
    std::optional<std::string> AskForPath(const std::string& kind, const FileRequest& request);

    JsonOutput& out_;
    std::string waiting_;
    Take take_;
    bool answered_ = false;
};

}  // namespace tallyhut
