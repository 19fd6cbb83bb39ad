#include "forms/qt/label_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr int kEndless = 100'000;
constexpr int kMostInALine = 1'000;     ///< characters: no screen is as wide, and measuring them takes time
constexpr double kRefusedEdge = 0.25;   ///< of the text's size
constexpr double kSmallestShare = 0.6;  ///< of the look's size of text
constexpr int kNarrowest = 2;           ///< pixels of a character, at least

/// Between the edge of a label on a ground of its own and its text.
int SideOf(const Look& look) {
    return qRound(look.pixels * 0.5);
}

}  // namespace

LabelWidget::LabelWidget(Control& label, const OperatorInput& input, QWidget* parent) : WidgetOf{label, input, parent} {
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
    setFocusPolicy(label.State().takesFocus ? Qt::TabFocus : Qt::NoFocus);
}

QSize LabelWidget::sizeHint() const {
    const QFontMetrics metrics{FontOf(TheLook())};
    return {metrics.averageCharWidth() * 4, metrics.height()};
}

QSize LabelWidget::Needed(int width) const {
    const QFontMetrics metrics{FullFont()};
    const int side = TheLook().boxed ? 2 * SideOf(TheLook()) : 0;
    const int lines = TheLook().wrapped ? std::max(width - side, 1) : kEndless;
    const QSize text = metrics.boundingRect(QRect{0, 0, lines, kEndless}, Flags(), drawn_).size();
    const int height = Wraps() ? text.height() : metrics.tightBoundingRect("\u00C9g").height();
    return {TheLook().wrapped && width == 0 ? 0 : text.width() + side, height};
}

bool LabelWidget::Wraps() const {
    return TheLook().wrapped || drawn_.contains('\n');
}

QFont LabelWidget::FullFont() const {
    QFont font = FontOf(TheLook());
    const ControlState& state = Logical().State();
    font.setBold(font.bold() || state.bold || state.refused);
    font.setUnderline(state.underlined);
    font.setItalic(state.italic);
    return font;
}

int LabelWidget::Flags() const {
    int flags = static_cast<int>(TheLook().alignment.toInt());
    if (TheLook().wrapped) {
        flags |= Qt::TextWordWrap;
    }
    if (AccessKeyOf(Logical().State().text) != 0) {
        flags |= Qt::TextShowMnemonic;
    }
    return flags;
}

void LabelWidget::ShowState() {
    const QString whole = ToQt(Logical().State().text);
    drawn_ = TheLook().trimmed ? WithoutFill(whole) : whole;
    if (!Wraps()) {
        drawn_.truncate(kMostInALine);
    }
    if (text() != whole) {
        setText(whole);
    }
    update();
}

LabelWidget::Colours LabelWidget::ColoursOf(const Theme& theme) const {
    const ControlState& state = Logical().State();
    const QColor beneath = TheLook().ground.isValid() ? TheLook().ground : theme.panel;
    Colours colours{.beneath = beneath, .ground = {}, .text = {}};
    const bool told = state.backColor >= 0 && !(TheLook().boxed && drawn_.trimmed().isEmpty());
    if (told) {
        colours.ground = ToQColor(state.backColor, theme);
    } else if (TheLook().boxed) {
        colours.ground = theme.stripe;
    }
    if (state.foreColor >= 0) {
        colours.text = ToQColor(state.foreColor, theme);
        if (state.backColor < 0) {
            colours.text = Readable(colours.text, colours.ground.isValid() ? colours.ground : beneath);
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

/// The text, of a line only what can have room in it: a long Morse message is shown anew for each character sent.
QString LabelWidget::Shown(int width) const {
    return Wraps() ? drawn_ : drawn_.left(width / kNarrowest + 1);
}

QFont LabelWidget::FittingFont(const QSize& room, const QString& shown) const {
    QFont font = FullFont();
    const double full = font.pointSizeF();
    constexpr double kStep = 0.05;
    for (double share = 1; share > kSmallestShare; share -= kStep) {
        font.setPointSizeF(full * share);
        const QSize size = QFontMetrics{font}.boundingRect(QRect{{0, 0}, room}, Flags(), shown).size();
        if (size.width() <= room.width() && (!Wraps() || size.height() <= room.height())) {
            break;
        }
        if (!Wraps() && size.width() > 2 * room.width()) {  // no size makes it fit
            font.setPointSizeF(full * (kSmallestShare + kStep));
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
    if (colours.ground.isValid()) {
        // What is refused has a frame, so that it is told from a notice without reading.
        const bool framed = Logical().State().refused && TheLook().boxed;
        const double edge = framed ? TheLook().pixels * kRefusedEdge : 0;
        DrawBox(painter, room, colours.ground, TextOn(colours.ground), {.edge = edge});
    }
    if (TheLook().boxed) {
        const int side = SideOf(TheLook());
        room.adjust(side, 0, -side, 0);
    }
    const auto drawFocus = [&] {
        if (Logical().State().pointed || IsFocusMarked(*this)) {
            DrawFocusEdge(painter, *this, rect(), colours.beneath);
        }
    };
    if (drawn_.trimmed().isEmpty()) {
        drawFocus();
        return;
    }
    const int flags = Flags();
    const QString shown = Shown(room.width());
    painter.setFont(FittingFont(room.size(), shown));
    const QString fitting =
        Wraps() ? shown : painter.fontMetrics().elidedText(shown, Qt::ElideRight, room.width(), flags);
    if (TheLook().ground.isValid() && !colours.ground.isValid()) {
        // Over a leader that crosses it, but not over the scale beside it.
        painter.fillRect(painter.boundingRect(room, flags, fitting).adjusted(0, 0, -2, 0), TheLook().ground);
    }
    drawFocus();
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
