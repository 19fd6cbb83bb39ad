#include "platform/dialogs.h"

namespace tallyhut {

Answer Dialogs::Show(const MessageBox& box) {
    ++shown_;
    return DoShow(box);
}

std::string Dialogs::Show(const InputBox& box) {
    return Ask(box).value_or("");
}

std::optional<std::string> Dialogs::Ask(const InputBox& box) {
    ++shown_;
    return DoShow(box);
}

std::optional<std::string> Dialogs::SaveFile(const FileRequest& request) {
    ++shown_;
    return DoSaveFile(request);
}

std::optional<std::string> Dialogs::OpenFile(const FileRequest& request) {
    ++shown_;
    return DoOpenFile(request);
}

std::optional<std::string> Dialogs::ChooseFolder(const FileRequest& request) {
    ++shown_;
    return DoChooseFolder(request);
}

std::optional<std::int32_t> Dialogs::ChooseColour(std::int32_t current) {
    ++shown_;
    return DoChooseColour(current);
}

}  // namespace tallyhut
