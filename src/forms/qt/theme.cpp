#include "forms/qt/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tallyhut {
namespace {

double LinearLight(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * LinearLight(colour.redF()) + 0.7152 * LinearLight(colour.greenF()) +
           0.0722 * LinearLight(colour.blueF());
}

/// The colour, moved towards black or white until it stands out from the ground.
QColor MadeReadable(const QColor& colour, const QColor& ground) {
    const QColor end = TextOn(ground);
    for (double share = 1; share > 0; share -= 0.1) {
        const QColor candidate = Mixed(colour, end, share);
        if (Contrast(candidate, ground) >= kReadableContrast) {
            return candidate;
        }
    }
    return end;
}

}  // namespace

Theme ThemeOf(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    Theme theme;
    theme.dark = Luminance(window) < Luminance(palette.color(QPalette::Active, QPalette::WindowText));
    theme.panel = theme.dark ? Mixed(base, QColor{Qt::white}, 0.94) : base;
    theme.ground = theme.dark ? Mixed(base, QColor{Qt::black}, 0.75) : Mixed(window, QColor{0xE6, 0xEC, 0xF1}, 0.5);
    theme.text = text;
    theme.quietText = MadeReadable(Mixed(text, theme.panel, 0.62), theme.panel);
    theme.edge = Mixed(text, theme.panel, 0.17);
    theme.stripe = Mixed(text, theme.panel, 0.035);
    theme.field = Mixed(text, theme.panel, theme.dark ? 0.08 : 0.045);
    theme.focusField = theme.dark ? QColor{0xF4, 0xF8, 0xFC} : QColor{Qt::white};
    theme.focusText = Qt::black;
    theme.accent = MadeReadable(QColor{0x15, 0x65, 0xC0}, theme.panel);
    theme.button = Mixed(text, theme.panel, theme.dark ? 0.14 : 0.08);
    theme.buttonText = text;
    return theme;
}

QColor ToQColor(Colour colour, const Theme& theme) {
    switch (colour) {
        case kWindowGround:
            return theme.field;
        case kWindowText:
            return theme.text;
        case kButtonFace:
            return theme.panel;
        case kButtonText:
            return theme.buttonText;
        default:
            return {RedOf(colour), GreenOf(colour), BlueOf(colour)};
    }
}

Colour FromQColor(const QColor& colour) {
    return FromRgb(colour.red(), colour.green(), colour.blue());
}

double Contrast(const QColor& one, const QColor& other) {
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor TextOn(const QColor& ground) {
    return Contrast(Qt::black, ground) >= Contrast(Qt::white, ground) ? Qt::black : Qt::white;
}

QColor GroundFor(const QColor& text, const QColor& ground) {
    if (Contrast(text, ground) >= kReadableContrast) {
        return ground;
    }
    constexpr std::array kSheets{QColor{0xC8, 0xCD, 0xD2}, QColor{0x1C, 0x22, 0x28}};  // calmer than white and black
    for (const QColor& sheet : kSheets) {
        if (Contrast(text, sheet) >= kReadableContrast) {
            return sheet;
        }
    }
    return TextOn(text);
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace tallyhut
