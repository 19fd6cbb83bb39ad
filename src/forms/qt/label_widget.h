#pragma once

#include <QLabel>

#include "forms/qt/control_widget.h"

namespace tallyhut {

/// A label. Its size is the layout's: a text that does not fit is drawn smaller, and at last cut with an ellipsis, so
/// that nothing around it moves when the text changes.
class LabelWidget : public WidgetOf<QLabel> {
public:
    LabelWidget(Control& label, const OperatorInput& input, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }
    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Colours {
        QColor beneath;
        QColor ground;  ///< invalid: what lies under the label
        QColor text;
    };
    Colours ColoursOf(const Theme& theme) const;
    bool Wraps() const;
    QFont FullFont() const;
    /// How the text is laid, as flags of the painter.
    int Flags() const;
    QString Shown(int width) const;
    /// The largest font, from the look's downwards, in which the text fits.
    QFont FittingFont(const QSize& room, const QString& shown) const;

    QString drawn_;
    bool movePending_ = false;
};

}  // namespace tallyhut
