#pragma once

#include <QGroupBox>
#include <QImage>
#include <QPainterPath>
#include <vector>

#include "forms/qt/control_widget.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// A frame lies under the controls that are in it; it does not hold their widgets.
class FrameWidget : public WidgetOf<QGroupBox> {
public:
    FrameWidget(Control& control, const OperatorInput& input, QWidget* parent);

    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void ShowLook() override;
    void initStyleOption(QStyleOptionGroupBox* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

/// A picture, stretched to the room that it has. Shapes are drawn as sharply as the screen can; a line that could not
/// be seen on its ground is drawn lighter or darker.
class RasterWidget : public WidgetOf<QWidget> {
public:
    RasterWidget(Raster& raster, const OperatorInput& input, QWidget* parent);

protected:
    void ShowState() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct PlacedShape {
        QPainterPath path;  ///< in the units of the picture
        Shape::Kind kind;
        Colour colour;
        double width;
    };
    void TakePixels();
    void TakeShapes();
    void PaintShapes(QPainter& painter) const;

    Raster& raster_;
    QImage picture_;
    std::vector<PlacedShape> shapes_;
    bool movePending_ = false;
};

/// A line from its first end to its second, in the box that the two span.
class LineWidget : public WidgetOf<QWidget> {
public:
    LineWidget(Control& control, const OperatorInput& input, QWidget* parent);

    static constexpr int kWidth = 2;

protected:
    void ShowState() override { update(); }
    void paintEvent(QPaintEvent* event) override;
};

/// Where the control stands in a room that shows what the frame holds; both in pixels, the control and the frame in
/// design units.
QRect BoxInPicture(const Control& control, const Place& frame, const QRect& room);

/// Lies under the controls of a picture, in one colour.
class PictureGround : public QWidget {
public:
    PictureGround(const QColor& ground, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor ground_;
};

}  // namespace tallyhut
