#include "forms/qt/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tallyhut {
namespace {

/// Calmer than white and black, and just far enough from them for a pure blue, a pure yellow and their like.
constexpr QColor kLightSheet{0xB9, 0xBE, 0xC4};
constexpr QColor kDarkSheet{0x1C, 0x22, 0x28};

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
    // A panel is a little less than the brightest, which is left for the field that keys go to.
    theme.panel = Mixed(base, theme.dark ? Qt::white : Qt::black, theme.dark ? 0.94 : 0.975);
    theme.ground = theme.dark ? Mixed(base, Qt::black, 0.75) : Mixed(window, QColor{0xDC, 0xE4, 0xEB}, 0.35);
    theme.text = Contrast(text, theme.panel) >= kReadableContrast ? text : TextOn(theme.panel);
    theme.quietText = MadeReadable(Mixed(theme.text, theme.panel, 0.62), theme.panel);
    theme.edge = Mixed(theme.text, theme.panel, 0.17);
    theme.stripe = Mixed(theme.text, theme.panel, 0.035);
    theme.field = Mixed(theme.text, theme.panel, theme.dark ? 0.08 : 0.045);
    theme.quietSelection = Mixed(theme.text, theme.field, 0.16);
    theme.focusField = theme.dark ? QColor{0xF4, 0xF8, 0xFC} : QColor{Qt::white};
    theme.focusText = Qt::black;
    theme.accent = MadeReadable(QColor{0x15, 0x65, 0xC0}, theme.panel);
    theme.button = Mixed(theme.text, theme.panel, theme.dark ? 0.14 : 0.08);
    theme.buttonText = theme.text;
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
    constexpr std::array kSheets{kLightSheet, kDarkSheet};
    for (const QColor& sheet : kSheets) {
        if (Contrast(text, sheet) >= kReadableContrast) {
            return sheet;
        }
    }
    return TextOn(text);
}

QColor DarkSheet() {
    return kDarkSheet;
}

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace tallyhut
