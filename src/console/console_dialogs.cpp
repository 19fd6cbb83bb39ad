#include "console/console_dialogs.h"

#include <array>

#include "console/console_error.h"
#include "console/text_encoding.h"
#include "values/number.h"
#include "values/utf8.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kLastColour = 0xFFFFFF;

[[noreturn]] void Refuse(const CommandWord& reply) {
    throw ConsoleError{"the answer does not fit: " + reply.text};
}

struct AnswerName {
    std::string_view name;
    Answer answer;
};

constexpr std::array kAnswerNames{
    AnswerName{"OK", Answer::OK},
    AnswerName{"Cancel", Answer::Cancel},
    AnswerName{"Yes", Answer::Yes},
    AnswerName{"No", Answer::No},
};

bool IsWord(const CommandWord& reply, std::string_view word) {
    return !reply.quoted && reply.text == word;
}

}  // namespace

void ConsoleDialogs::Beep() {
    out_.Event({{"event", "beep"}});
}

void ConsoleDialogs::TakeAnswer(const CommandWord& reply) {
    take_(reply);
    answered_ = true;
}

void ConsoleDialogs::Cancel() {
    answered_ = true;
}

void ConsoleDialogs::Ask(Json event, const std::string& kind, const Take& take) {
    out_.Event(std::move(event));
    waiting_ = kind;
    take_ = take;
    answered_ = false;
    runDialog([this] { return answered_; });
    waiting_.clear();
}

Answer ConsoleDialogs::DoShow(const MessageBox& box) {
    const ButtonsRow& row = RowOf(box.buttons);
    Answer answer = row.answers.back();
    Ask({{"event", "msgbox"},
         {"title", ToUtf8(box.title)},
         {"text", ToUtf8(box.text)},
         {"buttons", row.name},
         {"icon", NameOf(box.icon)}},
        "msgbox", [&row, &answer](const CommandWord& reply) {
            for (const AnswerName& known : kAnswerNames) {
                if (IsWord(reply, known.name) && std::ranges::count(row.answers, known.answer) > 0) {
                    answer = known.answer;
                    return;
                }
            }
            Refuse(reply);
        });
    return answer;
}

std::optional<std::string> ConsoleDialogs::DoShow(const InputBox& box) {
    std::optional<std::string> text;
    Ask({{"event", "inputbox"},
         {"title", ToUtf8(box.title)},
         {"text", ToUtf8(box.text)},
         {"default", ToUtf8(box.preset)}},
        "inputbox", [&box, &text](const CommandWord& reply) {
            if (reply.quoted) {
                text = FromUtf8(reply.text);
            } else if (IsWord(reply, "OK")) {
                text = box.preset;
            } else if (!IsWord(reply, "Cancel")) {
                Refuse(reply);
            }
        });
    return text;
}

/// A path is taken as the driver's bytes, whatever they are.
std::optional<std::string> ConsoleDialogs::AskForPath(const std::string& kind, const FileRequest& request) {
    std::optional<std::string> path;
    Ask({{"event", kind},
         {"title", ToUtf8(request.title)},
         {"filter", ToUtf8(request.filter)},
         {"folder", ToUtf8(request.folder)},
         {"name", ToUtf8(request.name)},
         {"overwritePrompt", request.overwritePrompt}},
        kind, [&request, &path](const CommandWord& reply) {
            if (reply.quoted && !reply.text.empty()) {
                path = reply.text;
            } else if (IsWord(reply, "OK") && !request.name.empty()) {
                path = request.name;
            } else if (!IsWord(reply, "Cancel")) {
                Refuse(reply);
            }
        });
    return path;
}

std::optional<std::string> ConsoleDialogs::DoSaveFile(const FileRequest& request) {
    return AskForPath("savefile", request);
}

std::optional<std::string> ConsoleDialogs::DoOpenFile(const FileRequest& request) {
    return AskForPath("openfile", request);
}

std::optional<std::string> ConsoleDialogs::DoChooseFolder(const FileRequest& request) {
    return AskForPath("folder", request);
}

std::optional<std::int32_t> ConsoleDialogs::DoChooseColour(std::int32_t current) {
    std::optional<std::int32_t> colour;
    Ask({{"event", "colour"}, {"current", current}}, "colour", [current, &colour](const CommandWord& reply) {
        const std::optional<double> number = ParseNumber(reply.text);
        if (!reply.quoted && number && *number >= 0 && *number <= kLastColour && *number == RoundHalfEven(*number)) {
            colour = ToInt32(*number);
        } else if (IsWord(reply, "OK")) {
            colour = current;
        } else if (!IsWord(reply, "Cancel")) {
            Refuse(reply);
        }
    });
    return colour;
}

}  // namespace tallyhut
