#include "forms/qt/table_sheet.h"

#include <algorithm>

namespace tallyhut {
namespace {

constexpr int kKeepsProportions = 1;

/// What the control takes of its form's design.
QRectF OnForm(const Control& control) {
    const ControlState& state = control.State();
    if (control.kind == ControlKind::Line) {
        return QRectF{QPointF{state.x1, state.y1}, QPointF{state.x2, state.y2}}.normalized();
    }
    return {state.place.left, state.place.top, state.place.width, state.place.height};
}

/// What all of it takes of the form's design.
QRectF AllOnForm(const std::vector<TablePiece>& pieces) {
    QRectF whole;
    for (const TablePiece& piece : pieces) {
        const QRectF place = OnForm(piece.widget->Logical());
        if (piece.widget->Logical().IsShown()) {  // a line takes no room in one direction
            whole =
                whole.isNull()
                    ? place
                    : QRectF{QPointF{std::min(whole.left(), place.left()), std::min(whole.top(), place.top())},
                             QPointF{std::max(whole.right(), place.right()), std::max(whole.bottom(), place.bottom())}};
        }
    }
    return whole;
}

}  // namespace

QSize NeedOfSheet(const TableLine& sheet, double least) {
    const QRectF whole = AllOnForm(sheet.pieces);
    double width = least;
    double height = width;
    for (const TablePiece& piece : sheet.pieces) {
        const Control& control = piece.widget->Logical();
        const QRectF place = OnForm(control);
        if (control.kind == ControlKind::Label && piece.text != SheetText::Within && !place.isEmpty()) {
            const QSize need = piece.widget->Needed(0);
            width = std::max(width, (need.width() + 1) * whole.width() / place.width());
            height = std::max(height, (need.height() + 1) * whole.height() / place.height());
        }
    }
    return {qRound(width), qRound(height)};
}

void PlaceSheet(const TableLine& sheet, const QRect& room) {
    const QRectF whole = AllOnForm(sheet.pieces);
    QSizeF size = room.size();
    if (sheet.row.number == kKeepsProportions) {
        size = whole.size().scaled(size, Qt::KeepAspectRatio);
    }
    const double across = whole.width() > 0 ? size.width() / whole.width() : 0;
    const double down = whole.height() > 0 ? size.height() / whole.height() : 0;
    const double left = room.left() + (room.width() - size.width()) / 2;
    const double top = room.top() + (room.height() - size.height()) / 2;
    for (const TablePiece& piece : sheet.pieces) {
        const QRectF place = OnForm(piece.widget->Logical());
        const QPoint from{qRound(left + (place.left() - whole.left()) * across),
                          qRound(top + (place.top() - whole.top()) * down)};
        const QPoint to{qRound(left + (place.right() - whole.left()) * across),
                        qRound(top + (place.bottom() - whole.top()) * down)};
        QWidget& widget = piece.widget->Widget();
        if (piece.widget->Logical().kind == ControlKind::Line) {
            PlaceBesidePicture(*piece.widget, *sheet.pieces.front().widget);
        } else {
            widget.setGeometry(QRect{from, to - QPoint{1, 1}});
        }
    }
}

void PlaceBesidePicture(ControlWidget& line, ControlWidget& picture) {
    const QRectF inPixels = picture.Widget().geometry();
    const QRectF onForm = OnForm(picture.Logical());
    const QRectF place = OnForm(line.Logical());
    if (onForm.isEmpty()) {
        return;
    }
    const auto toPixels = [&](const QPointF& at) {
        return QPoint{qRound(inPixels.left() + (at.x() - onForm.left()) * inPixels.width() / onForm.width()),
                      qRound(inPixels.top() + (at.y() - onForm.top()) * inPixels.height() / onForm.height())};
    };
    line.Widget().setGeometry(
        QRect{toPixels(place.topLeft()), toPixels(place.bottomRight()) - QPoint{1, 1}}.adjusted(-1, -1, 1, 1));
    line.Widget().raise();
}

}  // namespace tallyhut
