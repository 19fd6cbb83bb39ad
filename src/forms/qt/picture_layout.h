#pragma once

#include <vector>

#include "forms/qt/form_layout.h"
#include "forms/qt/picture_widgets.h"

namespace tallyhut {

/// The layout of a form that is one picture: each control stands where its form says, scaled to the window, on a dark
/// sheet. Text is as high as the picture's labels.
class PictureLayout : public FormLayout {
public:
    PictureLayout(Form& form, QWidget& window);

    QWidget& ParentOf(const Control& /*control*/) override { return *sheet_; }
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& widget) override;
    void Settle() override;
    void Arrange() override;

private:
    void Put(ControlWidget& widget);

    Form& form_;
    QWidget& window_;
    PictureGround* sheet_;
    std::vector<ControlWidget*> widgets_;
    std::vector<ControlWidget*> moved_;  ///< since the last settling
};

}  // namespace tallyhut
