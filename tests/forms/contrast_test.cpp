// Contrast as it is drawn, measured from the pixels of every form. The test runs in a light and in a dark look.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <unordered_map>

#include "forms/qt/form_layout.h"
#include "forms/qt/palettes.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

struct ContrastTest : testing::TestWithParam<bool> {
    ContrastTest() { QApplication::setPalette(GetParam() ? DarkPalette() : LightPalette()); }
    ~ContrastTest() override { QApplication::setPalette(before); }
    ContrastTest(const ContrastTest&) = delete;
    ContrastTest& operator=(const ContrastTest&) = delete;
    ContrastTest(ContrastTest&&) = delete;
    ContrastTest& operator=(ContrastTest&&) = delete;

    template <typename Check>
    void OnEveryForm(const Check& check) {
        for (Form* form : shown.program.desk.Forms()) {
            if (form->Controls().empty()) {
                continue;
            }
            QWidget& window = shown.Show(*form);
            const QImage picture = window.grab().toImage();
            for (QWidget* widget : window.findChildren<QWidget*>()) {
                auto* control = dynamic_cast<ControlWidget*>(widget);
                if (control != nullptr && widget->isVisible() && widget->isEnabled()) {
                    const QRect place{widget->mapTo(&window, QPoint{}), widget->size()};
                    check(*control, picture, place, form->name + '.' + control->Logical().FullName());
                }
            }
            if (form != &shown.program.form1) {
                form->Hide();
            }
        }
    }

    QPalette before = QApplication::palette();
    ShownProgram shown;
};

INSTANTIATE_TEST_SUITE_P(Looks, ContrastTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "Dark" : "Light"; });

struct DarkContrastTest : ContrastTest {};

INSTANTIATE_TEST_SUITE_P(Look, DarkContrastTest, testing::Values(true), [](const auto&) { return "Dark"; });

/// The ground is the colour of most pixels, the text the one that stands out most: its strokes are broader than the
/// blur at their edges.
std::pair<QColor, double> GroundAndBestContrast(const QImage& picture) {
    std::unordered_map<QRgb, int> counts;
    constexpr int kLarge = 200;
    const int step = picture.height() > kLarge ? 5 : 1;  // no text is as high as that
    for (int y = 0; y < picture.height(); y += step) {
        for (int x = 0; x < picture.width(); x += step) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto ground = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    double best = 1;
    for (const auto& [colour, count] : counts) {
        best = std::max(best, Contrast(QColor{colour}, QColor{ground->first}));
    }
    return {QColor{ground->first}, best};
}

TEST_P(ContrastTest, EveryTextCanBeReadOnItsGround) {
    int texts = 0;
    OnEveryForm(
        [&texts](const ControlWidget& control, const QImage& picture, const QRect& place, const std::string& name) {
            const ControlKind kind = control.Logical().kind;
            const bool label = kind == ControlKind::Label || kind == ControlKind::Button || kind == ControlKind::Option;
            if (!label || CaptionText(control.Logical().State().text).isEmpty()) {
                return;
            }
            ++texts;
            EXPECT_GE(GroundAndBestContrast(picture.copy(place)).second, kReadableContrast) << name;
        });
    EXPECT_GT(texts, 200);
}

TEST_P(ContrastTest, EveryFieldHasAnEdgeThatStandsOutFromWhatItLiesOn) {
    int fields = 0;
    OnEveryForm([&fields](ControlWidget& control, const QImage& picture, const QRect& place, const std::string& name) {
        if (qobject_cast<QLineEdit*>(&control.Widget()) == nullptr) {
            return;
        }
        ++fields;
        const QColor outside = picture.pixelColor(place.left() - 2, place.center().y());
        double edge = 1;
        for (int x = place.left(); x < place.left() + 4; ++x) {
            edge = std::max(edge, Contrast(picture.pixelColor(x, place.center().y()), outside));
        }
        EXPECT_GE(edge, kEdgeContrast) << name;
    });
    EXPECT_GT(fields, 30);
}

TEST_P(DarkContrastTest, NoSurfaceOfADarkFormIsLighterThanItsPanels) {
    const Theme theme = ThemeOf(DarkPalette());
    const double panel = Contrast(theme.panel, Qt::black);
    OnEveryForm(
        [panel](const ControlWidget& control, const QImage& picture, const QRect& place, const std::string& name) {
            const bool fieldOrLarger = !IsPressed(control.Logical()) && place.height() > 40 && place.width() > 200;
            if (fieldOrLarger) {
                EXPECT_LE(Contrast(GroundAndBestContrast(picture.copy(place)).first, Qt::black), panel * 1.35)
                    << name << ' ' << static_cast<int>(control.Logical().kind);
            }
        });
}

TEST_P(ContrastTest, ANoticeARefusalAndADuplicateDifferInMoreThanTheirText) {
    Form1& form = shown.program.form1;
    const QWidget& line = *shown.WindowOf(form).findChild<QWidget*>("lblDialog");
    const auto corner = [&] {
        shown.Settle();
        const QImage picture = const_cast<QWidget&>(line).grab().toImage();
        return std::pair{picture.pixelColor(2, picture.height() / 2), GroundAndBestContrast(picture).first};
    };
    form.lblDialog.SetCaption("");
    const auto quiet = corner();
    shown.program.logPart.panel.message.Write("A notice");
    const auto notice = corner();
    shown.program.logPart.panel.message.Refuse("Need Call Sign!");
    const auto refusal = corner();
    shown.program.logPart.panel.message.WriteOn(kDialogDupe, "Duplicate");
    const auto duplicate = corner();
    EXPECT_NE(notice.second, quiet.second);
    EXPECT_GE(Contrast(refusal.first, refusal.second), kReadableContrast) << "a frame";
    EXPECT_EQ(notice.first, notice.second) << "none";
    EXPECT_NE(duplicate.second, notice.second);
    EXPECT_EQ(duplicate.second, (QColor{255, 0, 0}));
}

}  // namespace
}  // namespace tallyhut
