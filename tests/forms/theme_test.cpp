#include "forms/qt/theme.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <array>

#include "contest/preferences.h"
#include "forms/Form1.h"
#include "forms/qt/program_style.h"

namespace tallyhut {
namespace {

QPalette LightDesktop() {
    return QPalette{QColor{0xEF, 0xEF, 0xEF}};
}

QPalette DarkDesktop() {
    QPalette palette{QColor{0x31, 0x36, 0x3B}, QColor{0x2A, 0x2E, 0x32}};
    palette.setColor(QPalette::Base, QColor{0x1B, 0x1E, 0x20});
    palette.setColor(QPalette::Text, QColor{0xFC, 0xFC, 0xFC});
    palette.setColor(QPalette::WindowText, QColor{0xFC, 0xFC, 0xFC});
    return palette;
}

struct ThemeTest : testing::TestWithParam<bool> {
    Theme theme = ThemeOf(GetParam() ? DarkDesktop() : LightDesktop());
};

INSTANTIATE_TEST_SUITE_P(Desktops, ThemeTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "Dark" : "Light"; });

/// The grounds that the program tells with a meaning.
constexpr std::array<Colour, 4> kToldGrounds{kDialogNormal, kDialogDupe, 0xFFFFC0, 0xC0FFFF};

TEST(Contrast, IsThatOfTheStandard) {
    EXPECT_DOUBLE_EQ(Contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(Contrast(Qt::white, Qt::white), 1);
    EXPECT_NEAR(Contrast(QColor{0x77, 0x77, 0x77}, Qt::white), 4.48, 0.01);
}

TEST_P(ThemeTest, KnowsADarkDesktop) {
    EXPECT_EQ(theme.dark, GetParam());
}

TEST_P(ThemeTest, TextIsReadableOnEveryGroundThatItStandsOn) {
    for (const QColor& ground : {theme.panel, theme.stripe, theme.field, theme.button}) {
        EXPECT_GE(Contrast(theme.text, ground), kReadableContrast) << ground.name().toStdString();
    }
    EXPECT_GE(Contrast(theme.quietText, theme.panel), kReadableContrast);
    EXPECT_GE(Contrast(theme.focusText, theme.focusField), kReadableContrast);
    EXPECT_GE(Contrast(theme.buttonText, theme.button), kReadableContrast);
    EXPECT_GE(Contrast(TextOn(theme.accent), theme.accent), kReadableContrast);
}

TEST_P(ThemeTest, TheEdgeOfAnEmptyMarkStandsOutFromThePanel) {
    constexpr double kOfAMark = 3;  // W3C WCAG 2, non-text contrast
    const ProgramStyle style;
    for (const QStyle::PrimitiveElement mark : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        QImage picture{16, 16, QImage::Format_RGB32};
        picture.fill(theme.panel);
        QStyleOptionButton option;
        option.rect = picture.rect();
        option.palette = GetParam() ? DarkDesktop() : LightDesktop();
        option.state = QStyle::State_Enabled | QStyle::State_Off;
        QPainter painter{&picture};
        style.drawPrimitive(mark, &option, &painter, nullptr);
        painter.end();
        EXPECT_GE(Contrast(picture.pixelColor(0, 8), theme.panel), kOfAMark) << mark;
    }
}

TEST_P(ThemeTest, ASelectionThatKeysDoNotGoToIsMuted) {
    const QColor& ground = theme.quietSelection;
    EXPECT_GE(Contrast(theme.text, ground), kReadableContrast);
    EXPECT_LT(Contrast(ground, theme.field), Contrast(theme.accent, theme.field));
    EXPECT_NE(ground, theme.field);
}

TEST_P(ThemeTest, TheFieldThatKeysGoToIsTheBrightestOfALightFormAndDazzlesInNoDarkOne) {
    for (const QColor& other : {theme.ground, theme.panel, theme.stripe, theme.field, theme.button}) {
        if (theme.dark) {
            EXPECT_LT(Contrast(theme.focusField, Qt::black), Contrast(theme.text, theme.panel) / 3);
        } else {
            EXPECT_GT(Contrast(theme.focusField, Qt::black), Contrast(other, Qt::black)) << other.name().toStdString();
        }
    }
    EXPECT_NE(theme.focusField, theme.field);
}

TEST_P(ThemeTest, TheEdgeOfAFieldStandsOutFromWhatItLiesOn) {
    for (const QColor& surface : {theme.panel, theme.ground, theme.field}) {
        EXPECT_GE(Contrast(theme.fieldEdge, surface), kEdgeContrast) << surface.name().toStdString();
        EXPECT_GE(Contrast(theme.accent, surface), kEdgeContrast) << surface.name().toStdString();
    }
}

TEST_P(ThemeTest, QuietTextIsReadableBetweenThePanelsToo) {
    EXPECT_GE(Contrast(theme.quietText, theme.ground), kReadableContrast);
}

TEST_P(ThemeTest, EveryColourThatAnOperatorCanChooseIsDrawnReadableInItsHue) {
    constexpr int kStep = 0x11;
    for (int red = 0; red <= 0xFF; red += kStep) {
        for (int green = 0; green <= 0xFF; green += kStep) {
            for (int blue = 0; blue <= 0xFF; blue += kStep) {
                const QColor told{red, green, blue};
                const QColor drawn = Readable(told, theme.panel);
                ASSERT_GE(Contrast(drawn, theme.panel), kReadableContrast) << told.name().toStdString();
                if (drawn.hslSaturation() > 8 && told.hslSaturation() > 8) {
                    const int apart = std::abs(drawn.hslHue() - told.hslHue());
                    ASSERT_LE(std::min(apart, 360 - apart), 4)
                        << told.name().toStdString() << " as " << drawn.name().toStdString();
                }
            }
        }
    }
}

TEST_P(ThemeTest, AColourThatCanBeReadIsDrawnAsItIsTold) {
    const QColor told = theme.dark ? QColor{255, 255, 128} : QColor{0, 0, 255};
    EXPECT_EQ(Readable(told, theme.panel), told);
}

TEST_P(ThemeTest, ToldGroundHasATextThatCanBeReadOnIt) {
    for (const Colour told : kToldGrounds) {
        const QColor ground = ToQColor(told, theme);
        EXPECT_GE(Contrast(TextOn(ground), ground), kReadableContrast) << std::hex << told;
    }
}

TEST_P(ThemeTest, SpotColoursAreReadableOnTheSheetOfTheBandMap) {
    for (const Colour told : {0x80FFFF, 0xFFFFFF, 0xC0C0C0}) {
        EXPECT_GE(Contrast(ToQColor(told, theme), DarkSheet()), kReadableContrast) << std::hex << told;
    }
}

TEST(Theme, ToldColoursKeepTheirValues) {
    const Theme theme = ThemeOf(LightDesktop());
    EXPECT_EQ(ToQColor(kDialogDupe, theme), (QColor{255, 0, 0}));
    EXPECT_EQ(ToQColor(kDialogNormal, theme), (QColor{0, 0xC0, 0xC0}));
    EXPECT_EQ(ToQColor(Preferences{}.gColorWorked, theme), (QColor{0, 0, 255}));
    EXPECT_EQ(FromQColor(QColor{1, 2, 3}), 0x030201);
}

}  // namespace
}  // namespace tallyhut
