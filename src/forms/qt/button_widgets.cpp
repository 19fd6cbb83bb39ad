#include "forms/qt/button_widgets.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

/// Around the caption, beside the mark.
void DrawFocusLine(QAbstractButton& button, QStyle::SubElement caption) {
    if (!IsFocusMarked(button)) {
        return;
    }
    constexpr int kBeforeText = 3;
    QStyleOptionButton option;
    option.initFrom(&button);
    const int left = button.style()->subElementRect(caption, &option, &button).left();
    QPainter painter{&button};
    DrawFocusEdge(painter, button, button.rect().adjusted(left - kBeforeText, 0, 0, 0));
}

/// Behind the caption, as much as there is room for.
void DrawAside(QAbstractButton& button, const Look& look, QStyle::SubElement caption) {
    if (look.aside.isEmpty()) {
        return;
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    QRect room = button.style()->subElementRect(caption, &option, &button);
    room.setLeft(room.left() + button.fontMetrics().horizontalAdvance(button.text() + "  "));
    QFont font = button.font();
    constexpr double kSmaller = 0.87;
    font.setPointSizeF(font.pointSizeF() * kSmaller);
    QPainter painter{&button};
    painter.setFont(font);
    painter.setPen(ThemeOf(button.palette()).quietText);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(look.aside, Qt::ElideRight, room.width()));
}

}  // namespace

template <typename QtButton>
ClickableWidget<QtButton>::ClickableWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : WidgetOf<QtButton>{control, input, parent} {
    this->setFocusPolicy(Qt::TabFocus);
    this->setAutoExclusive(false);
    this->setProperty(kFocusMark, false);
    QObject::connect(this, &QAbstractButton::clicked, this,
                     [this] { this->Input().Click(this->Logical(), kLeftButton); });
    QObject::connect(this, &QAbstractButton::toggled, this, [this] {  // by a screen reader
        if (!showing_) {
            this->Input().Click(this->Logical(), kLeftButton);
            ShowState();
        }
    });
}

template <typename QtButton>
void ClickableWidget<QtButton>::ShowState() {
    const ControlState& state = this->Logical().State();
    showing_ = true;
    const std::string& caption = state.text.empty() ? state.toolTip : state.text;
    this->setText(WithUnits(ToQt(caption)));
    if (this->isCheckable()) {
        this->setChecked(state.chosen);
    }
    showing_ = false;
}

template <typename QtButton>
void ClickableWidget<QtButton>::mousePressEvent(QMouseEvent* event) {
    const auto button = ToButton(event->button());
    if (button && *button != kLeftButton) {
        this->Input().Click(this->Logical(), *button);
    } else {
        QtButton::mousePressEvent(event);
    }
}

template <typename QtButton>
void ClickableWidget<QtButton>::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

ButtonWidget::ButtonWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : ClickableWidget{control, input, parent} {
    setAutoDefault(false);
}

QSize ButtonWidget::Needed(int /*width*/) const {
    const QSize caption = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {caption.width() + fontMetrics().averageCharWidth(), caption.height() + 2};
}

/// The caption of the main button stands on the accent.
void ButtonWidget::ShowState() {
    ClickableWidget::ShowState();
    const QPalette& desktop = parentWidget()->palette();
    const Theme theme = ThemeOf(desktop);
    QPalette wanted = desktop;
    const bool accented = TheLook().accented && Logical().State().enabled;
    wanted.setColor(QPalette::ButtonText, accented ? TextOn(theme.accent) : theme.buttonText);
    wanted.setColor(QPalette::Disabled, QPalette::ButtonText, Mixed(theme.buttonText, theme.button, 0.5));
    if (palette() != wanted) {
        setPalette(wanted);
    }
}

void ButtonWidget::ShowLook() {
    setProperty(kAccentMark, TheLook().accented);
    ClickableWidget::ShowLook();
}

/// For screen readers one of several that exclude each other is who may be unchosen by another alone; but which is
/// chosen the control decides. So it is that in a group of its own.
OptionWidget::OptionWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : ClickableWidget{control, input, parent} {
    setAutoExclusive(true);
    group_.setExclusive(false);
    group_.addButton(this);
}

void OptionWidget::paintEvent(QPaintEvent* event) {
    QRadioButton::paintEvent(event);
    DrawAside(*this, TheLook(), QStyle::SE_RadioButtonContents);
    DrawFocusLine(*this, QStyle::SE_RadioButtonContents);
}

CheckBoxWidget::CheckBoxWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : ClickableWidget{control, input, parent} {}

void CheckBoxWidget::paintEvent(QPaintEvent* event) {
    QCheckBox::paintEvent(event);
    DrawFocusLine(*this, QStyle::SE_CheckBoxContents);
}

}  // namespace tallyhut
