#include "forms/qt/form_window.h"

#include <QCloseEvent>
#include <QPainter>

#include "forms/qt/theme.h"

namespace tallyhut {
namespace {

Qt::WindowFlags FlagsOf(const Form& form) {
    return form.design.neverActive ? Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus
                                   : Qt::Window;
}

void Tell(const std::function<void()>& outlet) {
    if (outlet) {
        outlet();
    }
}

}  // namespace

FormWindow::FormWindow(Form& form) : QWidget{nullptr, FlagsOf(form)}, form_{form} {
    setObjectName(QString::fromStdString(form.name));
    setAttribute(Qt::WA_ShowWithoutActivating, form.design.neverActive);
    setFocusPolicy(Qt::NoFocus);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    Tell(outlets.closeAsked);
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && outlets.minimised) {
        outlets.minimised(isMinimized());
        if (static_cast<QWindowStateChangeEvent*>(event)->oldState().testFlag(Qt::WindowMaximized) &&
            !windowState().testAnyFlags(Qt::WindowMaximized | Qt::WindowMinimized)) {
            Tell(outlets.unmaximised);
        }
    } else if (event->type() == QEvent::PaletteChange) {
        Tell(outlets.paletteChanged);
    }
}

bool FormWindow::event(QEvent* event) {
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate) {
        Tell(outlets.activated);
    }
    return taken;
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Tell(outlets.resized);
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    Tell(outlets.moved);
}

void FormWindow::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = ThemeOf(palette());
    QPainter painter{this};
    painter.fillRect(rect(), theme.ground);
    if (form_.design.dialog) {
        painter.setPen(theme.edge);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

}  // namespace tallyhut
