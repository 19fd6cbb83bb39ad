#include "forms/qt/palettes.h"

#include <QColor>

namespace tallyhut {
namespace {

struct Colours {
    QColor window;
    QColor base;
    QColor text;
    QColor button;
    QColor link;
};

constexpr Colours kLight{
    {0xEF, 0xF0, 0xF2}, {0xFF, 0xFF, 0xFF}, {0x1A, 0x1D, 0x21}, {0xE9, 0xEB, 0xEE}, {0x15, 0x65, 0xC0}};
constexpr Colours kDark{
    {0x24, 0x28, 0x2C}, {0x1C, 0x1F, 0x23}, {0xF0, 0xF2, 0xF4}, {0x31, 0x36, 0x3B}, {0x5A, 0x9F, 0xF0}};

QPalette PaletteOf(const Colours& colours) {
    QPalette palette{colours.button, colours.window};
    for (const QPalette::ColorRole text :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(text, colours.text);
    }
    for (const QPalette::ColorRole dimmed : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        QColor half = colours.text;
        half.setAlphaF(0.5F);
        palette.setColor(QPalette::Disabled, dimmed, half);
    }
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.window);
    palette.setColor(QPalette::ToolTipBase, colours.button);
    palette.setColor(QPalette::Highlight, colours.link);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colours.link);
    return palette;
}

}  // namespace

QPalette LightPalette() {
    return PaletteOf(kLight);
}

QPalette DarkPalette() {
    return PaletteOf(kDark);
}

}  // namespace tallyhut
