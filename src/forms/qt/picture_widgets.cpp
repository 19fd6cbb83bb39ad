#include "forms/qt/picture_widgets.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionGroupBox>

#include "forms/qt/program_style.h"
#include "forms/qt/text_codec.h"
#include "toolkit/controls.h"

namespace tallyhut {

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
    : WidgetOf{raster, input, parent}, raster_{raster} {}

void RasterWidget::ShowState() {
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
    update();
}

void RasterWidget::paintEvent(QPaintEvent* /*event*/) {
    if (picture_.isNull()) {
        return;
    }
    QPainter painter{this};
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), picture_);
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

Sheet::Sheet(const QColor& ground, QWidget* parent) : QWidget{parent}, ground_{ground} {}

void Sheet::paintEvent(QPaintEvent* /*event*/) {
    QPainter{this}.fillRect(rect(), ground_);
}

}  // namespace tallyhut
