#pragma once

#include <vector>

#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"

namespace tallyhut {

/// Puts every control where its form says, scaled with the window. Text grows with it.
class GenericLayout : public FormLayout {
public:
    GenericLayout(Form& form, QWidget& window, FormMenus& menus);

    QWidget& ParentOf(const Control& control) override;
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& widget) override;
    void Arrange() override;

private:
    struct Scale {
        double x = 1;
        double y = 1;
        double text = 1;  ///< pixels of a point
    };
    Scale PresentScale() const;
    void Put(ControlWidget& widget, const Scale& scale) const;
    QString SpokenName(const Control& control) const;

    Form& form_;
    QWidget& window_;
    FormMenus& menus_;
    QWidget* canvas_;
    std::vector<ControlWidget*> widgets_;
};

}  // namespace tallyhut
