#include "platform/sim/dialogs.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tallyhut::sim {

namespace {

std::string Quoted(const std::string& text) {
    return " \"" + text + '"';
}

}  // namespace

template <class Reply>
Reply Dialogs::Ask(std::string box, std::deque<Reply>& replies, Reply whenClosed) {
    boxes.push_back(std::move(box));
    Reply reply = std::move(whenClosed);
    if (!replies.empty()) {  // taken now: what comes up meanwhile comes later in the script
        reply = std::move(replies.front());
        replies.pop_front();
    }
    if (const std::function<void()> meanwhile = onShow) {  // a copy, for it may set another
        meanwhile();
    }
    return reply;
}

Answer Dialogs::DoShow(const MessageBox& box) {
    const ButtonsRow& row = RowOf(box.buttons);
    const std::string line = "message" + Quoted(box.title) + Quoted(box.text) + ' ' + std::string{row.name} + ' ' +
                             std::string{NameOf(box.icon)};
    const Answer answer = Ask(line, answers, row.answers.back());
    if (std::ranges::find(row.answers, answer) == row.answers.end()) {
        throw AnswerWithoutButton{line};
    }
    return answer;
}

std::optional<std::string> Dialogs::DoShow(const InputBox& box) {
    const bool cancelled = inputs.empty();
    auto text = Ask<std::string>("input" + Quoted(box.title) + Quoted(box.text) + Quoted(box.preset), inputs, "");
    return cancelled ? std::nullopt : std::optional{std::move(text)};
}

std::optional<std::string> Dialogs::AskForFile(const std::string& kind, const FileRequest& request) {
    return Ask<std::optional<std::string>>(kind + Quoted(request.title) + Quoted(request.filter) +
                                               Quoted(request.folder) + Quoted(request.name) +
                                               (request.overwritePrompt ? " prompt" : ""),
                                           files, std::nullopt);
}

std::optional<std::string> Dialogs::DoSaveFile(const FileRequest& request) {
    return AskForFile("save", request);
}

std::optional<std::string> Dialogs::DoOpenFile(const FileRequest& request) {
    return AskForFile("open", request);
}

std::optional<std::string> Dialogs::DoChooseFolder(const FileRequest& request) {
    return AskForFile("folder", request);
}

std::optional<std::int32_t> Dialogs::DoChooseColour(std::int32_t current) {
    return Ask<std::optional<std::int32_t>>("colour " + std::to_string(current), colours, std::nullopt);
}

}  // namespace tallyhut::sim
