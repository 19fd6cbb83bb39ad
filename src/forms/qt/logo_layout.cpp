#include "forms/qt/logo_layout.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

namespace tallyhut {
namespace {

constexpr const char* kLogoFile = ":/tallyhut.svg";

class LogoPicture : public QWidget {
public:
    explicit LogoPicture(QWidget* parent) : QWidget{parent} {
        drawing_.setAspectRatioMode(Qt::KeepAspectRatio);
        setAccessibleName("The program's logo");
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        drawing_.render(&painter, QRectF{rect()});
    }

private:
    QSvgRenderer drawing_{QString{kLogoFile}};
};

}  // namespace

QIcon LogoIcon() {
    QSvgRenderer drawing{QString{kLogoFile}};
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap{size, size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        drawing.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

LogoLayout::LogoLayout(QWidget& window) : window_{window}, picture_{new LogoPicture{&window}}, texts_{new QVBoxLayout} {
    auto* row = new QHBoxLayout{&window};
    row->setSizeConstraint(QLayout::SetNoConstraint);
    row->addWidget(picture_);
    row->addLayout(texts_, 1);
    texts_->addStretch(1);
    texts_->addStretch(1);
}

QWidget& LogoLayout::ParentOf(const Control& /*control*/) {
    return window_;
}

void LogoLayout::Add(ControlWidget& widget) {
    widgets_.push_back(&widget);
    texts_->insertWidget(texts_->count() - 1, &widget.Widget());
}

void LogoLayout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
}

void LogoLayout::Arrange() {
    const double unit = std::min(window_.height() / 8.0, window_.width() / 21.0);
    const int margin = qRound(unit);
    window_.layout()->setContentsMargins(margin, margin, margin, margin);
    window_.layout()->setSpacing(margin);
    picture_->setFixedSize(window_.height() - 2 * margin, window_.height() - 2 * margin);
    for (ControlWidget* widget : widgets_) {
        Look look;
        look.pixels = unit * widget->Logical().State().fontSize / 20;
        look.bold = widget == widgets_.front();
        look.quiet = !look.bold;
        widget->SetLook(look);
        widget->Widget().setFixedHeight(qRound(look.pixels * 1.4));
    }
}

}  // namespace tallyhut
