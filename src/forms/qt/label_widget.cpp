#include "forms/qt/label_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr int kChipSide = 3;
constexpr double kSmallestShare = 0.6;  ///< of the look's size of text

/// Without the blanks and dots that push a text to its place in a proportional font.
QString Trimmed(QString text) {
    while (text.endsWith('.') || text.endsWith(' ')) {
        text.chop(1);
    }
    return text.trimmed();
}

}  // namespace

LabelWidget::LabelWidget(Control& label, const OperatorInput& input, QWidget* parent) : WidgetOf{label, input, parent} {
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
}

QSize LabelWidget::sizeHint() const {
    const QFontMetrics metrics{FontOf(TheLook())};
    return {metrics.averageCharWidth() * 4, metrics.height()};
}

void LabelWidget::ShowState() {
    const QString whole = ToQt(Logical().State().text);
    drawn_ = TheLook().trimmed ? Trimmed(whole) : whole;
    if (text() != whole) {
        setText(whole);
    }
    update();
}

LabelWidget::Colours LabelWidget::ColoursOf(const Theme& theme) const {
    const ControlState& state = Logical().State();
    const QColor beneath = TheLook().ground.isValid() ? TheLook().ground : theme.panel;
    Colours colours;
    if (state.backColor >= 0) {
        colours.ground = ToQColor(state.backColor, theme);
    } else if (TheLook().boxed) {
        colours.ground = theme.field;
    }
    if (state.foreColor >= 0) {
        colours.text = ToQColor(state.foreColor, theme);
        const QColor under = colours.ground.isValid() ? colours.ground : beneath;
        if (const QColor readable = GroundFor(colours.text, under); state.backColor < 0 && readable != under) {
            colours.ground = readable;
            colours.chip = true;
        }
    } else if (state.backColor >= 0) {
        colours.text = TextOn(colours.ground);
    } else if (beneath != theme.panel) {
        colours.text = TextOn(beneath);
    } else {
        colours.text = TheLook().quiet ? theme.quietText : theme.text;
    }
    return colours;
}

QFont LabelWidget::FittingFont(const QSize& room, int flags) const {
    QFont font = FontOf(TheLook());
    const int smallest = qRound(TheLook().pixels * kSmallestShare);
    for (int pixels = font.pixelSize(); pixels > smallest; --pixels) {
        font.setPixelSize(pixels);
        const QSize size = QFontMetrics{font}.boundingRect(QRect{{0, 0}, room}, flags, drawn_).size();
        if (size.width() <= room.width() && size.height() <= room.height()) {
            break;
        }
    }
    return font;
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = ThemeOf(parentWidget()->palette());
    const Colours colours = ColoursOf(theme);
    QPainter painter{this};
    QRect room = rect();
    if (colours.ground.isValid() && !colours.chip) {
        DrawBox(painter, room, colours.ground, colours.ground, 0);
    }
    if (TheLook().boxed) {
        const int side = qRound(TheLook().pixels * 0.5);
        room.adjust(side, 0, -side, 0);
    }
    if (drawn_.trimmed().isEmpty()) {
        return;
    }
    int flags = static_cast<int>(TheLook().alignment.toInt());
    if (TheLook().wrapped) {
        flags |= Qt::TextWordWrap;
    }
    if (AccessKeyOf(Logical().State().text) != 0) {
        flags |= Qt::TextShowMnemonic;
    }
    painter.setFont(FittingFont(room.size(), flags));
    const bool wraps = TheLook().wrapped || drawn_.contains('\n');
    const QString fitting =
        wraps ? drawn_ : painter.fontMetrics().elidedText(drawn_, Qt::ElideRight, room.width(), flags);
    if (colours.chip) {
        const QRect text = painter.fontMetrics().boundingRect(room, flags, fitting);
        DrawBox(painter, text.adjusted(-kChipSide, 0, kChipSide, 0), colours.ground, colours.ground, 0);
    }
    painter.setPen(isEnabled() ? colours.text : theme.quietText);
    painter.drawText(room, flags, fitting);
}

void LabelWidget::mousePressEvent(QMouseEvent* event) {
    if (const auto button = ToButton(event->button())) {
        Input().Click(Logical(), *button);
    }
}

void LabelWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const auto button = ToButton(event->button())) {
        Input().ClickAgain(Logical(), *button, this);
    }
}

void LabelWidget::mouseMoveEvent(QMouseEvent* /*event*/) {
    Control& label = Logical();
    if (movePending_ || !label.MouseMove) {
        return;
    }
    movePending_ = true;
    Input().DoWhileThere(this, [this, &label] {
        movePending_ = false;
        Input().TheDesk().Call(label.MouseMove);
    });
}

}  // namespace tallyhut
