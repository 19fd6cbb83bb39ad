#include "forms/qt/program_style.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "forms/qt/theme.h"

namespace tallyhut {
namespace {

// Lines and corners grow with the text.
double CornerAt(const QFontMetrics& text) {
    return std::max(4, text.height() / 6);
}

double EdgeAt(const QFontMetrics& text) {
    return std::max(1, text.height() / 24);
}

double FocusEdge(const QFontMetrics& text) {
    return std::max(2, text.height() / 12);
}

void DrawField(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const Theme theme = ThemeOf(option.palette);
    const bool ours = widget != nullptr && widget->property(kFocusMark).isValid();
    const bool focused = ours ? IsFocusMarked(*widget) : option.state.testFlag(QStyle::State_HasFocus);
    const bool refused = widget != nullptr && widget->property(kRefusedMark).toBool();
    DrawBox(painter, option.rect, option.palette.color(QPalette::Base),
            refused   ? theme.refused
            : focused ? theme.accent
                      : theme.fieldEdge,
            {.edge = focused || refused ? FocusEdge(option.fontMetrics) : EdgeAt(option.fontMetrics),
             .corner = CornerAt(option.fontMetrics)});
}

void DrawButton(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const Theme theme = ThemeOf(option.palette);
    const bool ours = widget != nullptr && widget->property(kFocusMark).isValid();
    const bool focused = ours ? IsFocusMarked(*widget) : option.state.testFlag(QStyle::State_HasFocus);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool accented = enabled && widget != nullptr && widget->property(kAccentMark).toBool();
    QColor fill = accented ? theme.accent : theme.button;
    if (option.state.testFlag(QStyle::State_Sunken)) {
        fill = Mixed(theme.text, fill, 0.2);
    } else if (option.state.testFlag(QStyle::State_MouseOver) && enabled) {
        fill = Mixed(theme.text, fill, 0.06);
    }
    const double edge = focused ? FocusEdge(option.fontMetrics) : EdgeAt(option.fontMetrics);
    const double corner = CornerAt(option.fontMetrics);
    if (accented && focused) {  // on its own colour a line of that colour would not be seen
        DrawBox(painter, option.rect, theme.panel, theme.text, {edge, corner});
        const int inset = static_cast<int>(2 * edge);
        DrawBox(painter, option.rect.adjusted(inset, inset, -inset, -inset), fill, fill, {0, corner});
        return;
    }
    DrawBox(painter, option.rect, fill, focused ? theme.accent : accented ? fill : theme.edge, {edge, corner});
}

bool PaintsOnlyWithin(const QPainter& painter, const QRect& rect) {
    const QPaintEngine* const engine = painter.paintEngine();
    const QRegion clip = engine == nullptr ? QRegion{} : engine->systemClip();
    return !clip.isEmpty() && painter.deviceTransform().mapRect(rect).contains(clip.boundingRect());
}

/// A ring that can be seen in a dark window, too, and a dot in it.
void DrawChoice(const QStyleOption& option, QPainter& painter) {
    const Theme theme = ThemeOf(option.palette);
    const double size = std::min(option.rect.width(), option.rect.height()) - 1;
    const QRectF ring{option.rect.x() + 0.5, option.rect.y() + 0.5, size, size};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool chosen = option.state.testFlag(QStyle::State_On);
    const QColor filled = option.state.testFlag(QStyle::State_Enabled) ? theme.accent : theme.quietText;
    painter.setPen(chosen ? filled : theme.quietText);
    painter.setBrush(chosen ? filled : theme.field);
    painter.drawEllipse(ring);
    if (chosen) {
        const double inset = size * 0.3;
        painter.setPen(Qt::NoPen);
        painter.setBrush(TextOn(filled));
        painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

/// A square that can be seen in a dark window, too, and a tick in it.
void DrawCheck(const QStyleOption& option, QPainter& painter) {
    const Theme theme = ThemeOf(option.palette);
    const double size = std::min(option.rect.width(), option.rect.height()) - 1;
    const QRectF square{option.rect.x() + 0.5, option.rect.y() + 0.5, size, size};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool ticked = option.state.testFlag(QStyle::State_On);
    const QColor filled = option.state.testFlag(QStyle::State_Enabled) ? theme.accent : theme.quietText;
    painter.setPen(ticked ? filled : theme.quietText);
    painter.setBrush(ticked ? filled : theme.field);
    painter.drawRoundedRect(square, 2, 2);
    if (ticked) {
        const auto at = [&square, size](double x, double y) { return square.topLeft() + QPointF{x, y} * size; };
        painter.setPen(QPen{TextOn(filled), std::max(1.5, size / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)}});
    }
    painter.restore();
}

void DrawHeading(const QStyleOption& option, QPainter& painter) {
    const Theme theme = ThemeOf(option.palette);
    painter.fillRect(option.rect, theme.stripe);
    painter.setPen(theme.edge);
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

}  // namespace

bool IsFocusMarked(const QWidget& widget) {
    return widget.property(kFocusMark).toBool();
}

void DrawFocusEdge(QPainter& painter, const QWidget& widget, const QRect& rect, const QColor& ground) {
    const QColor accent = ThemeOf(widget.palette()).accent;
    DrawBox(painter, rect, Qt::transparent, ground.isValid() ? Readable(accent, ground) : accent,
            {FocusEdge(widget.fontMetrics()), CornerAt(widget.fontMetrics())});
}

void DrawPanel(QPainter& painter, const QWidget& widget, const QString& title, const QRect& titleRoom) {
    const Theme theme = ThemeOf(widget.palette());
    DrawBox(painter, widget.rect(), theme.panel, theme.edge,
            {EdgeAt(widget.fontMetrics()), CornerAt(widget.fontMetrics())});
    QFont font = widget.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(theme.quietText);
    painter.drawText(titleRoom, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(title, Qt::ElideRight, titleRoom.width()));
}

void DrawBox(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge, const BoxShape& shape) {
    const int border = static_cast<int>(std::ceil(shape.edge + shape.corner));
    if (PaintsOnlyWithin(painter, rect.adjusted(border, border, -border, -border))) {  // as each time the caret blinks
        painter.fillRect(rect, fill);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(shape.edge > 0 ? QPen{edge, shape.edge} : QPen{Qt::NoPen});
    painter.setBrush(fill);
    const double inset = shape.edge / 2;
    painter.drawRoundedRect(QRectF{rect}.adjusted(inset, inset, -inset, -inset), shape.corner, shape.corner);
    painter.restore();
}

ProgramStyle::ProgramStyle() : QProxyStyle{QStyleFactory::create("Fusion")} {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const {
    switch (hint) {
        case SH_MenuBar_AltKeyNavigation:
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_UnderlineShortcut:
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (widget == nullptr) {
        return usual;
    }
    const int line = widget->fontMetrics().height();
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return std::max(std::min(usual, line), line * 4 / 5);
        case PM_ScrollBarExtent:
            return std::max(usual, line * 4 / 5);
        case PM_RadioButtonLabelSpacing:
        case PM_CheckBoxLabelSpacing:
            return std::max(usual, line / 3);
        case PM_FocusFrameHMargin:
            return qobject_cast<const QAbstractItemView*>(widget) == nullptr ? usual : std::max(usual, line / 4);
        case PM_MenuBarItemSpacing:
            return std::max(usual, line / 2);
        default:
            return usual;
    }
}

QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || group == nullptr || (part != SC_GroupBoxFrame && part != SC_GroupBoxContents)) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const int caption = group->text.isEmpty() ? 0 : group->fontMetrics.height() + 2;
    const QRect frame = group->rect.adjusted(0, caption, 0, 0);
    const int inside = part == SC_GroupBoxContents ? 2 : 0;
    return frame.adjusted(inside, inside, -inside, -inside);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element == PE_PanelLineEdit && qobject_cast<const QLineEdit*>(widget) != nullptr) {
        DrawField(*option, *painter, widget);
    } else if (element == PE_PanelButtonCommand) {
        DrawButton(*option, *painter, widget);
    } else if (element == PE_FrameGroupBox) {
        DrawBox(*painter, option->rect, Qt::transparent, ThemeOf(option->palette).edge);
    } else if (element == PE_IndicatorRadioButton) {
        DrawChoice(*option, *painter);
    } else if (element == PE_IndicatorCheckBox) {
        DrawCheck(*option, *painter);
    } else if (element == PE_FrameFocusRect && widget != nullptr && widget->inherits("QPushButton")) {
        return;  // the edge shows it
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element == CE_HeaderSection) {
        DrawHeading(*option, *painter);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

}  // namespace tallyhut
