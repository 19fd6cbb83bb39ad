#pragma once

#include <QDialog>
#include <optional>

#include "platform/dialogs.h"

class QLineEdit;

namespace tallyhut {

/// Text of dialogs, larger on a larger screen.
QFont DialogFont();

/// A message or a question with its title, plain text and buttons. Enter takes the first button, Esc the last; each
/// button has its Alt key.
class AskBox : public QDialog {
public:
    AskBox(const MessageBox& box, QWidget* parent);
    AskBox(const InputBox& box, QWidget* parent);

    /// What was chosen; a closed box answers as its last button does.
    Answer Chosen() const { return chosen_; }
    QString Entered() const;

private:
    void Build(const std::string& title, const std::string& text, Icon icon, std::optional<std::string> preset,
               Buttons buttons);

    Answer chosen_ = Answer::OK;
    QLineEdit* field_ = nullptr;
};

}  // namespace tallyhut
