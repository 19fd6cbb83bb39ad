#include "forms/qt/canvas.h"

#include <QApplication>
#include <QScrollArea>

#include "forms/qt/form_menus.h"

namespace tallyhut {

Canvas::Canvas(QWidget& window) : window_{window}, scroll_{new QScrollArea{&window}}, sheet_{new QWidget} {
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidget(sheet_);
    scroll_->viewport()->setAutoFillBackground(false);
    sheet_->setAutoFillBackground(false);
    QObject::connect(qApp, &QApplication::focusChanged, scroll_, [this](QWidget* /*before*/, QWidget* now) {
        if (now != nullptr && sheet_->isAncestorOf(now)) {
            scroll_->ensureWidgetVisible(now);
        }
    });
}

QSize Canvas::Spread(FormMenus& menus, double menuText) {
    int top = 0;
    if (QMenuBar* bar = menus.Bar()) {
        menus.SetTextSize(menuText);
        top = bar->sizeHint().height();
        bar->setGeometry(0, 0, window_.width(), top);
    }
    const QSize room{window_.width(), window_.height() - top};
    scroll_->setGeometry(0, top, room.width(), room.height());
    return room;
}

double Canvas::SmallestText() const {
    constexpr double kSmallest = 9;  // of the screen's own pixels
    return kSmallest / window_.devicePixelRatioF();
}

}  // namespace tallyhut
