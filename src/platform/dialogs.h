#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

enum class Buttons { OK, OKCancel, YesNo };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { OK, Cancel, Yes, No };

struct ButtonsRow {
    Buttons buttons;
    std::string_view name;
    std::array<Answer, 2> answers;  ///< the last is also the one of a closed box
};

inline constexpr std::array<ButtonsRow, 3> kButtons{{
    {Buttons::OK, "OK", {Answer::OK, Answer::OK}},
    {Buttons::OKCancel, "OKCancel", {Answer::OK, Answer::Cancel}},
    {Buttons::YesNo, "YesNo", {Answer::Yes, Answer::No}},
}};

inline constexpr std::array<std::string_view, 5> kIconNames{"None", "Information", "Question", "Exclamation",
                                                            "Critical"};

constexpr const ButtonsRow& RowOf(Buttons buttons) {
    return kButtons.at(static_cast<std::size_t>(buttons));
}
constexpr std::string_view NameOf(Icon icon) {
    return kIconNames.at(static_cast<std::size_t>(icon));
}
static_assert(std::ranges::all_of(kButtons, [](const auto& row) { return &row == &RowOf(row.buttons); }),
              "each row stands at its value");

struct MessageBox {
    std::string title = {};
    std::string text = {};
    Buttons buttons = Buttons::OK;
    Icon icon = Icon::None;
};

struct InputBox {
    std::string title = {};
    std::string text = {};
    std::string preset = {};  ///< what stands in the field at first
};

struct FileRequest {
    std::string title = {};
    std::string filter = {};       ///< for example "Log Files (*.log) | *.log"
    std::string folder = {};       ///< where the dialog starts
    std::string name = {};         ///< the whole suggested path, or empty
    bool overwritePrompt = false;  ///< asks before an existing file is chosen for writing
};

/// The dialogs that the machine lends. Each call returns when the operator has answered; timers go on meanwhile.
struct Dialogs {
    virtual ~Dialogs() = default;

    Answer Show(const MessageBox& box);
    /// Empty when cancelled.
    std::string Show(const InputBox& box);
    /// The same, with nothing for a cancel.
    std::optional<std::string> Ask(const InputBox& box);
    std::optional<std::string> SaveFile(const FileRequest& request);
    std::optional<std::string> OpenFile(const FileRequest& request);
    std::optional<std::string> ChooseFolder(const FileRequest& request);
    /// Colour values have blue in the high byte of 24 bits.
    std::optional<std::int32_t> ChooseColour(std::int32_t current);

    virtual void Beep() = 0;

    /// How many dialogs have been shown so far. A click during whose preparations this rises is dropped.
    int Shown() const { return shown_; }

protected:
    virtual Answer DoShow(const MessageBox& box) = 0;
    virtual std::optional<std::string> DoShow(const InputBox& box) = 0;
    virtual std::optional<std::string> DoSaveFile(const FileRequest& request) = 0;
    virtual std::optional<std::string> DoOpenFile(const FileRequest& request) = 0;
    virtual std::optional<std::string> DoChooseFolder(const FileRequest& request) = 0;
    virtual std::optional<std::int32_t> DoChooseColour(std::int32_t current) = 0;

private:
    int shown_ = 0;
};

}  // namespace tallyhut
