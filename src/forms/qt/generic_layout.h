#pragma once

#include <optional>
#include <vector>

#include "forms/qt/canvas.h"
#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"
#include "forms/qt/stretch.h"

namespace tallyhut {

/// The layout of a form that has no table yet: puts every control where its form says, scaled with the window, and
/// moves the design apart where a text needs more room than its place has. Text grows with the window; where the window
/// is too small for readable text, it scrolls.
class GenericLayout : public FormLayout {
public:
    GenericLayout(Form& form, QWidget& window, FormMenus& menus);

    QWidget& ParentOf(const Control& control) override;
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& widget) override;
    void Settle() override;
    void Arrange() override;

private:
    /// Gives all controls their text in this size (pixels of a point), and returns how the design lies in the window.
    std::pair<Stretch, Stretch> Fit(double pointPixels, const QSize& room);
    Look LookOf(const Control& control, double pointPixels) const;
    /// The control's place in the design. A caption on the line of a field stands exactly on it.
    Place PlaceOf(const Control& control) const;
    /// What the controls in a frame take of the design; none for an empty frame and for all else.
    std::optional<Place> PlaceWithin(const Control& frame) const;
    QString SpokenName(const Control& control) const;
    /// The label that says what the control is; null where none stands near.
    ControlWidget* CaptionOf(const Control& control) const;
    /// The label at the head of the row that a button stands in; null where there is none.
    const Control* RowCaptionOf(const Control& button) const;
    void TellNames();

    Form& form_;
    QWidget& window_;
    FormMenus& menus_;
    Canvas canvas_;
    std::vector<ControlWidget*> widgets_;
    std::vector<std::pair<const Control*, Place>> arranged_;  ///< the places that the last arrangement is made of
    double pointPixels_ = 0;                                  ///< of that arrangement
    bool stale_ = true;
    bool namesStale_ = false;
};

}  // namespace tallyhut
