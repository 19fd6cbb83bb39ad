#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/Form1.h"
#include "platform/dialogs.h"
#include "support/directories.h"
#include "values/text.h"

namespace tallyhut {

// What the files that the operator names have in common.

/// The program's name and version as files bear it: the caption of the main form without the address.
inline std::string ProgramTitle(const Form1& form) {
    constexpr std::size_t kTitleLength = 50;
    return Trim(form.Caption().substr(0, kTitleLength));
}

inline FileRequest SaveRequest(const Directories& directories, std::string_view filter, const std::string& name) {
    return {.title = "",
            .filter = std::string{filter},
            .folder = directories.WorkingDirectory,
            .name = WorkingFile(directories, name),
            .overwritePrompt = true};
}

/// Where the operator wants the file; none when the dialog was cancelled.
inline std::optional<std::string> ChosenPath(Dialogs& dialogs, const Directories& directories,
                                             const FileRequest& request) {
    const std::optional<std::string> answer = dialogs.SaveFile(request);
    return answer ? std::optional(WholePath(directories, *answer)) : std::nullopt;
}

/// What else is to be said stands behind the path's full stop.
inline MessageBox WrittenBox(const std::string& path, std::string_view advice = "") {
    std::string text = "The file was successfully written to the directory:\r\n\r\n" + path + ".";
    return {.title = "File Written Successfully.",
            .text = text.append(advice),
            .buttons = Buttons::OK,
            .icon = Icon::Information};
}

inline MessageBox NotWrittenBox(const std::string& reason) {
    return {.title = "Unable to write file.", .text = reason, .buttons = Buttons::OK, .icon = Icon::Exclamation};
}

}  // namespace tallyhut
