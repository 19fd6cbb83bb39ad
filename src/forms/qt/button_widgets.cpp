#include "forms/qt/button_widgets.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

void DrawFocusLine(QWidget& widget) {
    if (IsFocusMarked(widget)) {
        QPainter painter{&widget};
        DrawBox(painter, widget.rect(), Qt::transparent, ThemeOf(widget.palette()).accent, 2);
    }
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
    this->setText(ToQt(state.text));
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

OptionWidget::OptionWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : ClickableWidget{control, input, parent} {}

void OptionWidget::paintEvent(QPaintEvent* event) {
    QRadioButton::paintEvent(event);
    DrawFocusLine(*this);
}

CheckBoxWidget::CheckBoxWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : ClickableWidget{control, input, parent} {}

void CheckBoxWidget::paintEvent(QPaintEvent* event) {
    QCheckBox::paintEvent(event);
    DrawFocusLine(*this);
}

}  // namespace tallyhut
