#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "forms/qt/control_widget.h"

namespace tallyhut {

/// What buttons of all kinds have in common: the caption, clicks that go to the control, and no state of their own.
template <typename QtButton>
class ClickableWidget : public WidgetOf<QtButton> {
public:
    ClickableWidget(Control& control, const OperatorInput& input, QWidget* parent);

protected:
    void ShowState() override;
    void nextCheckState() override {}
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool showing_ = false;
};

class ButtonWidget : public ClickableWidget<QPushButton> {
public:
    ButtonWidget(Control& control, const OperatorInput& input, QWidget* parent);

    QSize Needed(int width) const override;

protected:
    void ShowState() override;
    void ShowLook() override;
};

class OptionWidget : public ClickableWidget<QRadioButton> {
public:
    OptionWidget(Control& control, const OperatorInput& input, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QButtonGroup group_;
};

class CheckBoxWidget : public ClickableWidget<QCheckBox> {
public:
    CheckBoxWidget(Control& control, const OperatorInput& input, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tallyhut
