#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "forms/qt/control_widget.h"
#include "forms/qt/text_codec.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// The mouse on a text box: where it puts the caret, what it selects, the menu of the right button, and paste by the
/// middle one. The text itself only ever changes in the control.
class TextMouse {
public:
    TextMouse(TextBox& box, const OperatorInput& input, QWidget& widget) : box_{box}, input_{input}, widget_{widget} {}

    /// Positions are bytes of the control's text.
    void Press(Qt::MouseButton button, int position, const QPoint& globalPosition);
    void DragTo(int position);
    void Release();
    void DoubleClick(Qt::MouseButton button);
    /// What something other than a key has put into the widget's text goes through the control.
    void Replace(const QString& text);

private:
    void Select(int from, int to);
    void OpenMenu(const QPoint& globalPosition);

    TextBox& box_;
    const OperatorInput& input_;
    QWidget& widget_;
    std::optional<int> anchor_;
};

/// A text box of one line.
class FieldWidget : public WidgetOf<QLineEdit> {
public:
    FieldWidget(TextBox& box, const OperatorInput& input, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// For the first few characters that the control takes: a longer text moves along.
    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void ShowLook() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void PutText(const QString& wanted);
    int PositionAt(const QMouseEvent& event);

    TextBox& box_;
    TextMouse mouse_;
    ShownText shown_;
    bool showing_ = false;
};

/// A text box of many lines.
class PageWidget : public WidgetOf<QPlainTextEdit> {
public:
    PageWidget(TextBox& box, const OperatorInput& input, QWidget* parent);

    /// For two lines: a longer text scrolls.
    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int PositionAt(const QMouseEvent& event) const;

    TextBox& box_;
    TextMouse mouse_;
    ShownText shown_;
    std::string text_;
    bool showing_ = false;
    bool scrolledUp_ = false;  ///< by the operator, who reads there
};

}  // namespace tallyhut
