#pragma once

#include <QProxyStyle>

namespace tallyhut {

/// Set to true on a widget whose control keys go to; the style marks it, whichever window the desktop holds active.
inline constexpr const char* kFocusMark = "focusMark";

/// Set to true on the main button of a form.
inline constexpr const char* kAccentMark = "accentMark";

/// Set to true on a field whose text was not taken.
inline constexpr const char* kRefusedMark = "refusedMark";

bool IsFocusMarked(const QWidget& widget);

/// One look on every desktop: flat fields and buttons with a clear mark of the focus. Leaves the Alt key and F10 alone,
/// which are the program's.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    /// Marks and bars grow with the text beside them.
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    /// A frame is drawn below its caption, and what lies in it, within that.
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

/// Around what has the focus, within the rectangle: at least two pixels, and more around large text.
///
/// @param ground  what lies there, where it is not the window's own
void DrawFocusEdge(QPainter& painter, const QWidget& widget, const QRect& rect, const QColor& ground = {});

/// A panel that fills the widget, and what it is called.
void DrawPanel(QPainter& painter, const QWidget& widget, const QString& title, const QRect& titleRoom);

/// In pixels.
struct BoxShape {
    double edge = 1;
    double corner = 4;
};

/// A filled rectangle with round corners.
void DrawBox(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge, const BoxShape& shape = {});

}  // namespace tallyhut
