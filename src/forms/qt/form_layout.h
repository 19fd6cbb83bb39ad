#pragma once

#include <memory>

#include "forms/qt/control_widget.h"
#include "toolkit/form.h"

namespace tallyhut {

class FormMenus;

/// Arranges the widgets of one form in its window.
class FormLayout {
public:
    FormLayout() = default;
    virtual ~FormLayout() = default;
    FormLayout(const FormLayout&) = delete;
    FormLayout& operator=(const FormLayout&) = delete;
    FormLayout(FormLayout&&) = delete;
    FormLayout& operator=(FormLayout&&) = delete;

    /// The widget that a control's own is made in.
    virtual QWidget& ParentOf(const Control& control) = 0;
    virtual void Add(ControlWidget& widget) = 0;
    virtual void Remove(ControlWidget& widget) = 0;
    /// Something of the control has changed, perhaps its place.
    virtual void Changed(ControlWidget& widget) = 0;
    /// All that is to be told at once has been told.
    virtual void Settle() {}
    /// The window has another size, or all widgets have been added.
    virtual void Arrange() = 0;
};

/// A label that has nothing to say before the program has put a value into it.
bool IsValue(const Control& control);
/// It is filled in or read, and called by the label that stands by it.
bool IsCalledByCaption(const Control& control);
/// A button, an option or a check box.
bool IsPressed(const Control& control);

/// The arrangement of a form of this name.
std::unique_ptr<FormLayout> MakeLayout(Form& form, QWidget& window, FormMenus& menus);

}  // namespace tallyhut
