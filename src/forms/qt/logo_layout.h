#pragma once

#include <QIcon>
#include <vector>

#include "forms/qt/form_layout.h"

class QVBoxLayout;

namespace tallyhut {

/// The program's logo as an icon of the desktop.
QIcon LogoIcon();

/// The logo form's window: the picture, and the form's labels beside it.
class LogoLayout : public FormLayout {
public:
    explicit LogoLayout(QWidget& window);

    QWidget& ParentOf(const Control& control) override;
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& /*widget*/) override {}
    void Arrange() override;

private:
    QWidget& window_;
    QWidget* picture_;
    QVBoxLayout* texts_;
    std::vector<ControlWidget*> widgets_;
};

}  // namespace tallyhut
