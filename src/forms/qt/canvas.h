#pragma once

#include <QSize>

class QScrollArea;
class QWidget;

namespace tallyhut {

class FormMenus;

/// What a form's controls stand on: it fills the window below the menus, and scrolls where it is larger. What has the
/// focus is kept in view.
class Canvas {
public:
    explicit Canvas(QWidget& window);

    QWidget& Sheet() const { return *sheet_; }
    /// Fills the window below the menus, whose text gets this size in pixels, and returns the room there.
    QSize Spread(FormMenus& menus, double menuText);
    /// Text is not drawn smaller than this; pixels.
    double SmallestText() const;

private:
    QWidget& window_;
    QScrollArea* scroll_;
    QWidget* sheet_;
};

}  // namespace tallyhut
