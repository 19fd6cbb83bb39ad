#include "forms/qt/theme.h"

#include <QRgba64>
#include <algorithm>
#include <cmath>
#include <limits>

#include "forms/qt/last_answers.h"

namespace tallyhut {
namespace {

constexpr QColor kDarkSheet{0x1C, 0x22, 0x28};

double LightOf(quint16 channel) {
    const double share = channel / static_cast<double>(std::numeric_limits<quint16>::max());
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    const QRgba64 bits = colour.rgba64();
    return 0.2126 * LightOf(bits.red()) + 0.7152 * LightOf(bits.green()) + 0.0722 * LightOf(bits.blue());
}

constexpr double kSteps = 50;
/// Thin strokes are drawn with their edges blended into the ground, which costs some of a text's contrast.
constexpr double kStrokeContrast = kReadableContrast + 0.4;

/// Of the candidates between a colour (share 0) and its extreme (share 1), the first that stands out from the ground so
/// far; the extreme where none does.
template <typename CandidateAt>
QColor FirstStandingOut(const CandidateAt& candidateAt, const QColor& ground, double contrast) {
    for (double step = 0; step < kSteps; ++step) {
        if (const QColor candidate = candidateAt(step / kSteps); Contrast(candidate, ground) >= contrast) {
            return candidate;
        }
    }
    return candidateAt(1);
}

/// The colour, moved towards black or white until it stands out from the ground.
QColor MadeReadable(const QColor& colour, const QColor& ground, double contrast = kReadableContrast) {
    return FirstStandingOut([&](double share) { return Mixed(TextOn(ground), colour, share); }, ground, contrast);
}

/// The colour, lighter or darker until it stands out from the ground.
QColor FoundOfItsHue(const QColor& colour, const QColor& ground, double contrast) {
    const QColor hsl = colour.toHsl();
    const float end = Contrast(Qt::black, ground) >= Contrast(Qt::white, ground) ? 0.0F : 1.0F;
    return FirstStandingOut(
        [&](double share) {
            const float lightness = hsl.lightnessF() + (end - hsl.lightnessF()) * static_cast<float>(share);
            return share == 0 ? colour
                              : QColor::fromHslF(std::max(hsl.hslHueF(), 0.0F), hsl.hslSaturationF(), lightness);
        },
        ground, contrast);
}

struct HueQuestion {
    QColor colour;
    QColor ground;
    double contrast;

    bool operator==(const HueQuestion&) const = default;
};

/// The same; the colours of sections and spots are asked for with every painting.
QColor OfItsHue(const QColor& colour, const QColor& ground, double contrast) {
    constexpr std::size_t kColoursInUse = 32;
    static LastAnswers<HueQuestion, QColor, kColoursInUse> found;
    return found.Of({colour, ground, contrast}, [&] { return FoundOfItsHue(colour, ground, contrast); });
}

/// What a theme is made from.
struct ThemeGrounds {
    QColor window;
    QColor windowText;
    QColor base;
    QColor text;

    bool operator==(const ThemeGrounds&) const = default;
};

Theme ThemeFrom(const ThemeGrounds& grounds) {
    const auto& [window, windowText, base, text] = grounds;
    Theme theme;
    theme.dark = Luminance(window) < Luminance(windowText);
    // A panel is a little less than the brightest, which is left for the field that keys go to.
    theme.panel = Mixed(base, theme.dark ? Qt::white : Qt::black, theme.dark ? 0.94 : 0.975);
    theme.ground = theme.dark ? Mixed(base, Qt::black, 0.75) : Mixed(window, QColor{0xDC, 0xE4, 0xEB}, 0.35);
    theme.text = Contrast(text, theme.panel) >= kReadableContrast ? text : TextOn(theme.panel);
    theme.quietText = MadeReadable(MadeReadable(Mixed(theme.text, theme.panel, 0.62), theme.panel), theme.ground);
    theme.edge = Mixed(theme.text, theme.panel, 0.17);
    theme.stripe = Mixed(theme.text, theme.panel, 0.035);
    // Lighter than the panel in a light window, and darker in a dark one: here is something to be filled.
    theme.field = theme.dark ? Mixed(theme.panel, Qt::black, 0.7) : Mixed(theme.panel, Qt::white, 0.5);
    const QColor edge = Mixed(theme.text, theme.panel, 0.35);
    theme.fieldEdge = MadeReadable(MadeReadable(edge, theme.panel, kEdgeContrast), theme.ground, kEdgeContrast);
    theme.quietSelection = Mixed(theme.text, theme.field, 0.16);
    theme.accent = MadeReadable(QColor{0x15, 0x65, 0xC0}, theme.panel);
    theme.refused = MadeReadable(QColor{0xC6, 0x28, 0x28}, theme.panel);
    theme.focusField = theme.dark ? Mixed(theme.accent, theme.field, 0.22) : QColor{Qt::white};
    theme.focusText = theme.dark ? QColor{Qt::white} : QColor{Qt::black};
    theme.button = Mixed(theme.text, theme.panel, theme.dark ? 0.14 : 0.08);
    theme.buttonText = theme.text;
    return theme;
}

}  // namespace

Theme ThemeOf(const QPalette& palette) {
    constexpr std::size_t kGroundsOfFields = 16;  // each painting asks, and few fields have a ground of their own
    static LastAnswers<ThemeGrounds, Theme, kGroundsOfFields> made;
    const auto colourOf = [&palette](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    const ThemeGrounds grounds{.window = colourOf(QPalette::Window),
                               .windowText = colourOf(QPalette::WindowText),
                               .base = colourOf(QPalette::Base),
                               .text = colourOf(QPalette::Text)};
    return made.Of(grounds, [&grounds] { return ThemeFrom(grounds); });
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

QColor Readable(const QColor& text, const QColor& ground) {
    return OfItsHue(text, ground, kStrokeContrast);
}

QColor Visible(const QColor& mark, const QColor& ground) {
    return OfItsHue(mark, ground, kEdgeContrast);
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
