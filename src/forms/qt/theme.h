#pragma once

#include <QColor>
#include <QPalette>

#include "values/colour.h"

namespace tallyhut {

/// The colours of the program's surfaces, made from the desktop's palette, light or dark.
struct Theme {
    bool dark = false;
    QColor ground;          ///< of windows, between the panels
    QColor panel;           ///< of panels, which hold controls that belong together
    QColor edge;            ///< around panels
    QColor fieldEdge;       ///< around what is typed into
    QColor stripe;          ///< every other row of a list, and its heading
    QColor text;            ///< on panels
    QColor quietText;       ///< captions beside something more important
    QColor field;           ///< of text fields that wait
    QColor quietSelection;  ///< in a field that waits
    QColor focusField;      ///< of the field that keys go to: in a light window the brightest thing
    QColor focusText;
    QColor refused;  ///< around what was not taken
    QColor accent;   ///< around what has the focus
    QColor button;
    QColor buttonText;
};

Theme ThemeOf(const QPalette& palette);

/// A 24-bit colour value as it stands; one of the desktop's own from the theme.
QColor ToQColor(Colour colour, const Theme& theme);
Colour FromQColor(const QColor& colour);

/// How well one colour can be told from the other, from 1 (not at all) to 21. Source: W3C WCAG 2, contrast ratio.
double Contrast(const QColor& one, const QColor& other);
/// Text is held to be readable from here on.
inline constexpr double kReadableContrast = 4.5;
/// And the edge of a field or a mark to be seen.
inline constexpr double kEdgeContrast = 3;
/// Black or white, whichever is told better from the ground.
QColor TextOn(const QColor& ground);
/// The colour, or where it cannot be read on the ground, one of the same hue that can.
QColor Readable(const QColor& text, const QColor& ground);
/// The same for a line or a mark, which need only be seen.
QColor Visible(const QColor& mark, const QColor& ground);

/// A dark ground on which light colours can be read, in a light window, too.
QColor DarkSheet();

/// `share` of the one colour and the rest of the other.
QColor Mixed(const QColor& one, const QColor& other, double share);

}  // namespace tallyhut
