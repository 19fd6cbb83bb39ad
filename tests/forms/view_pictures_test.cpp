// Pictures that are drawn from shapes, as the operator sees and points at them.

#include <gtest/gtest.h>

#include <QImage>
#include <QMouseEvent>

#include "forms/qt/theme.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

struct ViewPicturesTest : testing::Test {
    ShownProgram shown;
    ViewsPart& views = shown.program.viewsPart;

    QWidget& Widget(Form& form, const char* name) { return *shown.Show(form).findChild<QWidget*>(name); }
    /// The pointer, moved to a share of a widget's width and height.
    void PointAt(QWidget& widget, double across, double down) {
        const QPointF at{widget.width() * across, widget.height() * down};
        QMouseEvent move{QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier};
        QApplication::sendEvent(&widget, &move);
        shown.Settle();
    }
    /// Where a moment of the graph stands in the picture's width.
    static double OnGraph(double share) {
        return (GraphQSO::kPlot.left + share * GraphQSO::kPlot.width) / GraphQSO::kPicture.width;
    }
};

TEST_F(ViewPicturesTest, ThePointerStandsForTheSameMomentWhateverTheSizeOfTheWindow) {
    QWidget& picture = Widget(views.graphForm, "picGraph");
    PointAt(picture, OnGraph(0.5), 0.5);
    const std::string told = views.graphForm.lblHover.Caption();
    EXPECT_NE(told, "");
    shown.WindowOf(views.graphForm).resize(700, 420);
    shown.Settle();
    PointAt(picture, OnGraph(0.1), 0.5);
    EXPECT_NE(views.graphForm.lblHover.Caption(), told);
    PointAt(picture, OnGraph(0.5), 0.5);
    EXPECT_EQ(views.graphForm.lblHover.Caption(), told);
}

TEST_F(ViewPicturesTest, ALineStandsUnderThePointer) {
    QWidget& picture = Widget(views.graphForm, "picGraph");
    const auto* line = shown.WindowOf(views.graphForm).findChild<QWidget*>("LineHover");
    for (const double share : {0.2, 0.7}) {
        PointAt(picture, OnGraph(share), 0.5);
        EXPECT_TRUE(line->isVisible());
        EXPECT_NEAR(line->geometry().center().x(), picture.x() + picture.width() * OnGraph(share), 2);
        EXPECT_GT(line->height(), picture.height() / 2);
    }
}

TEST_F(ViewPicturesTest, TheAxisStaysBesideThePlotWhateverTheSizeOfTheWindow) {
    QWidget& picture = Widget(views.graphForm, "picGraph");
    QWidget& window = shown.WindowOf(views.graphForm);
    const auto* lowest = window.findChild<QWidget*>("lblY(0)");
    for (const QSize& size : {QSize{1000, 700}, QSize{620, 420}}) {
        window.resize(size);
        shown.Settle();
        const double bottom = (GraphQSO::kPlot.top + GraphQSO::kPlot.height) / GraphQSO::kPicture.height;
        EXPECT_NEAR(lowest->geometry().center().y(), picture.y() + picture.height() * bottom, 2);
    }
}

TEST_F(ViewPicturesTest, TheMapKeepsItsProportions) {
    const QWidget& picture = Widget(views.mapForm, "Picture1");
    QWidget& window = shown.WindowOf(views.mapForm);
    const double wanted = picture.width() * 1.0 / picture.height();
    for (const QSize& size : {QSize{1200, 400}, QSize{500, 700}}) {
        window.resize(size);
        shown.Settle();
        EXPECT_NEAR(picture.width() * 1.0 / picture.height(), wanted, 0.02);
    }
}

TEST_F(ViewPicturesTest, ALineThatCouldNotBeSeenOnItsGroundIsDrawnDarker) {
    for (std::int32_t n = 1; n <= shown.program.log.gContactCount(); ++n) {
        shown.program.log.Change(n, [](Contact& contact) { contact.Bnd = "160"; });  // white, on a white ground
    }
    QWidget& picture = Widget(views.graphForm, "picGraph");
    const QImage image = picture.grab().toImage();
    const Place sample = GraphQSO::SampleOf(0);
    const int x = static_cast<int>((sample.left + sample.width / 2) / GraphQSO::kPicture.width * image.width());
    const int middle = static_cast<int>(sample.top / GraphQSO::kPicture.height * image.height());
    double most = 0;
    for (int y = middle - 3; y <= middle + 3; ++y) {
        most = std::max(most, Contrast(image.pixelColor(x, y), Qt::white));
    }
    EXPECT_GT(most, 2);
}

TEST_F(ViewPicturesTest, ASavedPictureIsThatOfTheWindowWithItsLabels) {
    shown.Show(views.graphForm);
    shown.dialogs.files.emplace_back("/contest/graph.png");
    shown.program.desk.PostClick(views.graphForm.cmdSave, kLeftButton);
    shown.Settle();
    const std::string& file = shown.files.contents.at("/contest/graph.png");
    const QImage saved = QImage::fromData(QByteArray::fromStdString(file), "PNG");
    EXPECT_GE(saved.width(), 2'000);
    const double scale = saved.width() / GraphQSO::kPicture.width;
    int dark = 0;  // of the digits beside the axis
    for (int y = 0; y < saved.height(); ++y) {
        for (int x = 0; x < static_cast<int>((GraphQSO::kPlot.left - 100) * scale); ++x) {
            dark += saved.pixelColor(x, y).lightness() < 100 ? 1 : 0;
        }
    }
    EXPECT_GT(dark, 200);
}

TEST_F(ViewPicturesTest, AFormThatWasNeverShownIsSavedFromItsPixels) {
    views.graphForm.picGraph.Show(Drawing{.width = 10, .height = 10, .ground = 255}, 10);
    const QImage saved =
        QImage::fromData(QByteArray::fromStdString(shown.program.desk.PngOf(views.graphForm.picGraph)), "PNG");
    EXPECT_EQ(saved.size(), (QSize{10, 10}));
    EXPECT_EQ(saved.pixelColor(5, 5), QColor(Qt::red));
}

}  // namespace
}  // namespace tallyhut
