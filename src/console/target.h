#pragma once

#include <string>
#include <string_view>

#include "console/json_output.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// What a command is aimed at: a control or a form, and behind a point the property asked for.
struct Target {
    Form* form = nullptr;
    Control* control = nullptr;  ///< null where the form itself is meant
    std::string property;        ///< empty for the default one
};

/// "txtCall", "Label10(3)", "RigControlfrm.txtFreq", "PacketSpotfrm", each with ".PROPERTY" behind it where
/// `withProperty` is set. Throws ConsoleError for a name that is none and a form that was never loaded.
Target FindTarget(const Desk& desk, std::string_view text, bool withProperty);

/// A control of a form that commands may act on: the form is shown and no modal form stands over it, and the control is
/// neither hidden nor disabled. Throws ConsoleError.
Control& ActableControl(const Desk& desk, std::string_view text);

/// A form that has been loaded. Throws ConsoleError.
Form& LoadedForm(const Desk& desk, std::string_view name);

/// The value of a target's property. Throws ConsoleError for a property that it does not have.
Json PropertyOf(const Target& target);
/// A whole number prints without a point.
Json NumberJson(double value);

Json RowsOf(const Control& control);
Json FormsOf(const Desk& desk);
Json ControlsOf(const Form& form);

}  // namespace tallyhut
