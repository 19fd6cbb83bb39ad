#include "forms/qt/picture_widgets.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionGroupBox>
#include <algorithm>
#include <iterator>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr double kThinnest = 0.5;  ///< pixels of a line in a picture

}  // namespace

FrameWidget::FrameWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : WidgetOf{control, input, parent} {}

/// Its caption; what lies in it asks for itself.
QSize FrameWidget::Needed(int /*width*/) const {
    if (TheLook().frame != FrameLook::Box) {
        return {fontMetrics().horizontalAdvance(CaptionText(Logical().State().text)), fontMetrics().height()};
    }
    return {fontMetrics().horizontalAdvance(title() + "MM"), fontMetrics().height() * 2};
}

void FrameWidget::ShowState() {
    setTitle(ToQt(Logical().State().text));
}

void FrameWidget::ShowLook() {
    WidgetOf::ShowLook();
    setTitle({});  // what it encloses is reckoned anew
    setTitle(ToQt(Logical().State().text));
    update();
}

/// To the style, which reckons what it encloses, a frame that is no box has no caption.
void FrameWidget::initStyleOption(QStyleOptionGroupBox* option) const {
    QGroupBox::initStyleOption(option);
    if (TheLook().frame != FrameLook::Box) {
        option->text.clear();
    }
}

void FrameWidget::paintEvent(QPaintEvent* event) {
    const QString caption = CaptionText(Logical().State().text);
    QPainter painter{this};
    switch (TheLook().frame) {
        case FrameLook::Box:
            painter.end();
            QGroupBox::paintEvent(event);
            break;
        case FrameLook::Panel:
            DrawPanel(painter, *this, caption, TheLook().captionRoom);
            break;
        case FrameLook::Line:
            painter.setPen(ThemeOf(parentWidget()->palette()).quietText);
            painter.drawText(TheLook().captionRoom, Qt::AlignLeft | Qt::AlignVCenter, caption);
            break;
    }
}

void FrameWidget::mousePressEvent(QMouseEvent* event) {
    if (const auto button = ToButton(event->button())) {
        Input().Click(Logical(), *button);
    }
}

RasterWidget::RasterWidget(Raster& raster, const OperatorInput& input, QWidget* parent)
    : WidgetOf{raster, input, parent}, raster_{raster} {
    setMouseTracking(true);
}

void RasterWidget::ShowState() {
    picture_ = {};
    shapes_.clear();
    if (raster_.Shapes() == nullptr) {
        TakePixels();
    } else {
        TakeShapes();
    }
    update();
}

void RasterWidget::TakePixels() {
    const RasterImage& image = raster_.Image();
    const Theme theme = ThemeOf(palette());
    picture_ = QImage{image.Width(), image.Height(), QImage::Format_RGB32};
    const std::vector<Colour>& pixels = image.Pixels();
    std::size_t next = 0;
    for (int y = 0; y < image.Height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture_.scanLine(y));
        for (int x = 0; x < image.Width(); ++x) {
            const Colour pixel = pixels[next++];
            row[x] = pixel >= 0 ? qRgb(RedOf(pixel), GreenOf(pixel), BlueOf(pixel)) : ToQColor(pixel, theme).rgb();
        }
    }
}

void RasterWidget::TakeShapes() {
    for (const Shape& shape : raster_.Shapes()->shapes) {
        QPainterPath whole;  // filled by the rule of odd and even, as a new path is
        for (const Path& path : shape.paths) {
            QPolygonF points;
            points.reserve(static_cast<int>(path.size()) + 1);
            std::ranges::transform(path, std::back_inserter(points), [](const Point& at) {
                return QPointF{at.x, at.y};
            });
            if (points.size() == 1) {
                points.push_back(points.front());  // a dot
            }
            whole.addPolygon(points);
        }
        shapes_.push_back({whole, shape.kind, shape.colour, shape.width});
    }
}

void RasterWidget::PaintShapes(QPainter& painter) const {
    const Drawing& drawing = *raster_.Shapes();
    if (drawing.width <= 0 || drawing.height <= 0) {
        return;
    }
    const Theme theme = ThemeOf(palette());
    const QColor ground = ToQColor(drawing.ground, theme);
    painter.fillRect(rect(), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    const double across = width() / drawing.width;
    const double down = height() / drawing.height;
    const QTransform toPixels = QTransform::fromScale(across, down);
    for (const PlacedShape& shape : shapes_) {
        const QPainterPath path = toPixels.map(shape.path);
        const QColor colour = ToQColor(shape.colour, theme);
        if (shape.kind == Shape::Kind::Area) {
            painter.fillPath(path, colour);
        } else {
            const double wide = std::max(shape.width * std::min(across, down), kThinnest);
            painter.strokePath(path, QPen{Visible(colour, ground), wide, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        }
    }
}

void RasterWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    if (raster_.Shapes() != nullptr) {
        PaintShapes(painter);
    } else if (!picture_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect(), picture_);
    }
}

/// In the units of the form's places, whatever the size of the window.
void RasterWidget::mouseMoveEvent(QMouseEvent* event) {
    const Place& place = raster_.State().place;
    raster_.pointer = {event->position().x() * place.width / std::max(width(), 1),
                       event->position().y() * place.height / std::max(height(), 1)};
    if (movePending_ || !raster_.MouseMove) {
        return;
    }
    movePending_ = true;
    Input().DoWhileThere(this, [this] {
        movePending_ = false;
        Input().TheDesk().Call(raster_.MouseMove);
    });
}

void RasterWidget::mousePressEvent(QMouseEvent* event) {
    if (const auto button = ToButton(event->button())) {
        Input().Click(Logical(), *button);
    }
}

void RasterWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const auto button = ToButton(event->button())) {
        Input().ClickAgain(Logical(), *button, this);
    }
}

LineWidget::LineWidget(Control& control, const OperatorInput& input, QWidget* parent)
    : WidgetOf{control, input, parent} {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
    const ControlState& state = Logical().State();
    const bool rising = (state.x2 - state.x1) * (state.y2 - state.y1) < 0;
    const QRectF box = QRectF{rect()}.adjusted(kWidth / 2.0, kWidth / 2.0, -kWidth / 2.0, -kWidth / 2.0);
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor& ground = TheLook().ground;
    const bool plain = state.foreColor < 0 && ground.isValid();
    painter.setPen(QPen{plain ? TextOn(ground) : ToQColor(state.foreColor, ThemeOf(palette())), kWidth});
    painter.drawLine(rising ? box.bottomLeft() : box.topLeft(), rising ? box.topRight() : box.bottomRight());
}

QRect BoxInPicture(const Control& control, const Place& frame, const QRect& room) {
    const ControlState& state = control.State();
    const double x = room.width() / std::max(frame.width, 1.0);
    const double y = room.height() / std::max(frame.height, 1.0);
    const auto at = [&](double left, double top) {
        return QPointF{room.left() + (left - frame.left) * x, room.top() + (top - frame.top) * y};
    };
    if (control.kind != ControlKind::Line) {
        const Place& place = state.place;
        const QPoint corner = at(place.left, place.top).toPoint();
        const QPoint opposite = at(place.left + place.width, place.top + place.height).toPoint();
        return {corner, opposite - QPoint{1, 1}};  // neighbours share an edge and no pixel
    }
    constexpr double kHalf = LineWidget::kWidth / 2.0;
    return QRectF{at(std::min(state.x1, state.x2), std::min(state.y1, state.y2)),
                  at(std::max(state.x1, state.x2), std::max(state.y1, state.y2))}
        .adjusted(-kHalf, -kHalf, kHalf, kHalf)
        .toAlignedRect();
}

PictureGround::PictureGround(const QColor& ground, QWidget* parent) : QWidget{parent}, ground_{ground} {}

void PictureGround::paintEvent(QPaintEvent* /*event*/) {
    QPainter{this}.fillRect(rect(), ground_);
}

}  // namespace tallyhut
