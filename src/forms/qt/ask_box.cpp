#include "forms/qt/ask_box.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "forms/qt/paragraph.h"
#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "forms/qt/theme.h"

namespace tallyhut {
namespace {

struct ButtonRow {
    Answer answer;
    const char* caption;
    QDialogButtonBox::ButtonRole role;
};

constexpr ButtonRow kOk{Answer::OK, "&OK", QDialogButtonBox::AcceptRole};
constexpr ButtonRow kCancel{Answer::Cancel, "&Cancel", QDialogButtonBox::RejectRole};
constexpr ButtonRow kYes{Answer::Yes, "&Yes", QDialogButtonBox::YesRole};
constexpr ButtonRow kNo{Answer::No, "&No", QDialogButtonBox::NoRole};

std::vector<ButtonRow> RowsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::OKCancel:
            return {kOk, kCancel};
        case Buttons::YesNo:
            return {kYes, kNo};
        case Buttons::OK:
            break;
    }
    return {kOk};
}

std::optional<QStyle::StandardPixmap> PictureOf(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return QStyle::SP_MessageBoxInformation;
        case Icon::Question:
            return QStyle::SP_MessageBoxQuestion;
        case Icon::Exclamation:
            return QStyle::SP_MessageBoxWarning;
        case Icon::Critical:
            return QStyle::SP_MessageBoxCritical;
        case Icon::None:
            break;
    }
    return std::nullopt;
}

/// The button that Enter takes.
void MarkMain(QPushButton& button) {
    button.setProperty(kAccentMark, true);
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, TextOn(ThemeOf(palette).accent));
    button.setPalette(palette);
}

}  // namespace

QFont DialogFont() {
    QFont font = QApplication::font();
    font.setPixelSize(std::clamp(QGuiApplication::primaryScreen()->geometry().width() / 92, 13, 28));
    return font;
}

AskBox::AskBox(const MessageBox& box, QWidget* parent) : QDialog{parent} {
    Build(box.title, box.text, box.icon, std::nullopt, box.buttons);
}

AskBox::AskBox(const InputBox& box, QWidget* parent) : QDialog{parent} {
    Build(box.title, box.text, Icon::None, box.preset, Buttons::OKCancel);
}

void AskBox::Build(const std::string& title, const std::string& text, Icon icon, std::optional<std::string> preset,
                   Buttons buttons) {
    setObjectName(preset ? "inputbox" : "msgbox");
    setWindowTitle(ToQt(title).trimmed());
    setFont(DialogFont());
    const int space = font().pixelSize();
    auto* grid = new QGridLayout{this};
    grid->setContentsMargins(space * 3 / 2, space * 3 / 2, space * 3 / 2, space);
    grid->setHorizontalSpacing(space * 3 / 2);
    grid->setVerticalSpacing(space * 3 / 4);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    if (const auto picture = PictureOf(icon)) {
        auto* label = new QLabel;
        label->setPixmap(style()->standardIcon(*picture).pixmap(space * 3));
        grid->addWidget(label, 0, 0, 3, 1, Qt::AlignTop);
    }
    QFont bold = font();
    bold.setBold(true);
    auto* heading = new Paragraph{windowTitle(), bold};  // a title bar may be too short for it, or missing
    heading->setObjectName("title");
    heading->setVisible(!windowTitle().isEmpty());
    grid->addWidget(heading, 0, 1);
    auto* message = new Paragraph{ToQt(text), font()};
    message->setObjectName("text");
    grid->addWidget(message, 1, 1);
    if (preset) {
        field_ = new QLineEdit{ToQt(*preset)};
        field_->setObjectName("field");
        field_->setAccessibleName(windowTitle());
        field_->setMinimumHeight(space * 2);
        field_->selectAll();
        grid->addWidget(field_, 2, 1);
    }
    auto* box = new QDialogButtonBox;
    grid->addWidget(box, 3, 0, 1, 2);
    const std::vector<ButtonRow> rows = RowsOf(buttons);
    chosen_ = rows.back().answer;
    for (const ButtonRow& row : rows) {
        QPushButton* button = box->addButton(row.caption, row.role);
        button->setMinimumSize(space * 6, space * 2);
        const bool first = &row == &rows.front();
        button->setDefault(first);
        if (first) {
            MarkMain(*button);
        }
        if (first && !preset) {
            button->setFocus();
        }
        connect(button, &QPushButton::clicked, this, [this, answer = row.answer] {
            chosen_ = answer;
            done(answer == Answer::OK || answer == Answer::Yes ? Accepted : Rejected);
        });
    }
    if (field_ != nullptr) {
        field_->setFocus();
    }
}

QString AskBox::Entered() const {
    return field_ == nullptr ? QString{} : field_->text();
}

}  // namespace tallyhut
