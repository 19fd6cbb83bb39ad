#include "console/target.h"

#include <array>
#include <cmath>
#include <vector>

#include "console/console_error.h"
#include "console/text_encoding.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::string_view kSecretText = "****";

std::string_view KindName(ControlKind kind) {
    constexpr std::array<std::string_view, 12> kNames{"textbox", "label",    "button", "option", "checkbox", "frame",
                                                      "list",    "listview", "menu",   "timer",  "line",     "raster"};
    return kNames.at(static_cast<std::size_t>(kind));
}

Json TextJson(std::string_view text) {
    return ToUtf8(text);
}

bool HasChoice(const Control& control) {
    return control.kind == ControlKind::Option || control.kind == ControlKind::CheckBox;
}

/// Of a secret no more than whether there is one.
Json TextOf(const Control& control) {
    const ControlState& state = control.State();
    return TextJson(state.secret && !state.text.empty() ? kSecretText : state.text);
}

/// Of a secret it would tell the length.
Json SelectionOf(const Control& control, int characters) {
    return control.State().secret ? 0 : characters;
}

Json ValueOf(const Control& control) {
    return HasChoice(control) ? Json(control.State().chosen ? 1 : 0) : TextOf(control);
}

struct ControlProperty {
    std::string_view name;
    Json (*value)(const Control&);
};

constexpr std::array kControlProperties{
    ControlProperty{"text", [](const Control& c) { return TextOf(c); }},
    ControlProperty{"caption", [](const Control& c) { return TextOf(c); }},
    ControlProperty{"value", [](const Control& c) { return ValueOf(c); }},
    ControlProperty{"checked", [](const Control& c) { return Json(c.State().chosen); }},
    ControlProperty{"visible", [](const Control& c) { return Json(c.IsShown()); }},
    ControlProperty{"enabled", [](const Control& c) { return Json(c.State().enabled); }},
    ControlProperty{"toolTip", [](const Control& c) { return TextJson(c.State().toolTip); }},
    ControlProperty{"foreColor", [](const Control& c) { return Json(c.State().foreColor); }},
    ControlProperty{"backColor", [](const Control& c) { return Json(c.State().backColor); }},
    ControlProperty{"fontSize", [](const Control& c) { return NumberJson(c.State().fontSize); }},
    ControlProperty{"selStart", [](const Control& c) { return SelectionOf(c, c.State().selStart); }},
    ControlProperty{"selLength", [](const Control& c) { return SelectionOf(c, c.State().selLength); }},
    ControlProperty{"maxLength", [](const Control& c) { return Json(c.State().maxLength); }},
    ControlProperty{"tabIndex", [](const Control& c) { return Json(c.State().tabIndex); }},
    ControlProperty{"focused", [](const Control& c) { return Json(c.HasFocus()); }},
    ControlProperty{"selected", [](const Control& c) { return Json(c.State().row); }},
    ControlProperty{"interval", [](const Control& c) { return Json(c.State().interval); }},
    ControlProperty{"left", [](const Control& c) { return NumberJson(c.State().place.left); }},
    ControlProperty{"top", [](const Control& c) { return NumberJson(c.State().place.top); }},
    ControlProperty{"width", [](const Control& c) { return NumberJson(c.State().place.width); }},
    ControlProperty{"height", [](const Control& c) { return NumberJson(c.State().place.height); }},
    ControlProperty{"x1", [](const Control& c) { return NumberJson(c.State().x1); }},
    ControlProperty{"y1", [](const Control& c) { return NumberJson(c.State().y1); }},
    ControlProperty{"x2", [](const Control& c) { return NumberJson(c.State().x2); }},
    ControlProperty{"y2", [](const Control& c) { return NumberJson(c.State().y2); }},
};

struct FormProperty {
    std::string_view name;
    Json (*value)(const Form&);
};

constexpr std::array kFormProperties{
    FormProperty{"caption", [](const Form& f) { return TextJson(f.Caption()); }},
    FormProperty{"visible", [](const Form& f) { return Json(f.IsVisible()); }},
    FormProperty{"state", [](const Form& f) { return Json(f.IsMinimised() ? "minimised" : "normal"); }},
    FormProperty{"left", [](const Form& f) { return NumberJson(f.FormPlace().left); }},
    FormProperty{"top", [](const Form& f) { return NumberJson(f.FormPlace().top); }},
    FormProperty{"width", [](const Form& f) { return NumberJson(f.FormPlace().width); }},
    FormProperty{"height", [](const Form& f) { return NumberJson(f.FormPlace().height); }},
};

Json DefaultValueOf(const Control& control) {
    if (control.kind == ControlKind::Timer) {
        return control.State().enabled;
    }
    if (control.kind == ControlKind::List) {
        const int row = control.State().row;
        return row < 0 ? Json("") : TextJson(control.State().items.at(static_cast<std::size_t>(row)));
    }
    return ValueOf(control);
}

/// "pixel(X,Y)" of a picture, in the units of its place.
std::optional<Json> PixelOf(const Control& control, std::string_view property) {
    if (control.kind != ControlKind::Raster || !property.starts_with("pixel(") || !property.ends_with(")")) {
        return std::nullopt;
    }
    const std::string_view inside = property.substr(6, property.size() - 7);
    const std::size_t comma = inside.find(',');
    const auto x = ParseNumber(inside.substr(0, comma));
    const auto y = comma == std::string_view::npos ? std::nullopt : ParseNumber(inside.substr(comma + 1));
    if (!x || !y) {
        throw ConsoleError{"a pixel wants two numbers"};
    }
    const RasterImage& image = static_cast<const Raster&>(control).Image();
    const Place& place = control.State().place;
    const double unitsX = place.width > 0 ? image.Width() / place.width : 1;
    const double unitsY = place.height > 0 ? image.Height() / place.height : 1;
    return Json(image.At(static_cast<int>(*x * unitsX), static_cast<int>(*y * unitsY)));
}

/// The parts of "A.B.C"; a point within brackets does not part.
std::vector<std::string> Parts(std::string_view text) {
    std::vector<std::string> parts(1);
    int depth = 0;
    for (const char character : text) {
        depth += character == '(' ? 1 : 0;
        depth -= character == ')' ? 1 : 0;
        if (character == '.' && depth == 0) {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

bool IsRow(ControlKind kind) {
    return kind == ControlKind::List || kind == ControlKind::ListView;
}

}  // namespace

Json NumberJson(double value) {
    if (value == std::floor(value) && std::abs(value) < 9e15) {
        return static_cast<std::int64_t>(value);
    }
    return value;
}

Form& LoadedForm(const Desk& desk, std::string_view name) {
    Form* form = desk.FindForm(name);
    if (form == nullptr) {
        throw ConsoleError{"no form " + std::string{name}};
    }
    if (!form->IsLoaded()) {
        throw ConsoleError{"the form was never loaded: " + std::string{name}};
    }
    return *form;
}

Target FindTarget(const Desk& desk, std::string_view text, bool withProperty) {
    std::vector<std::string> parts = Parts(text);
    Target target;
    std::size_t next = 0;
    if (desk.FindForm(parts[0]) != nullptr) {
        target.form = &LoadedForm(desk, parts[0]);
        next = 1;
    } else {
        target.form = desk.Active();
    }
    if (next < parts.size() && target.form != nullptr) {
        target.control = target.form->Find(parts[next]);
        next += target.control != nullptr ? 1 : 0;
    }
    const bool formAlone = target.control == nullptr && next == 1;
    const bool found = target.form != nullptr && (target.control != nullptr || formAlone);
    const std::size_t left = parts.size() - next;
    if (!found || left > 1 || (left == 1 && !withProperty)) {
        throw ConsoleError{"unknown target " + std::string{text}};
    }
    target.property = left == 1 ? parts[next] : "";
    return target;
}

Control& ActableControl(const Desk& desk, std::string_view text) {
    const Target target = FindTarget(desk, text, false);
    if (target.control == nullptr) {
        throw ConsoleError{"a control is wanted, not a form: " + std::string{text}};
    }
    if (!target.form->IsVisible() || !target.control->IsShown()) {
        throw ConsoleError{"hidden: " + std::string{text}};
    }
    if (!target.control->State().enabled) {
        throw ConsoleError{"disabled: " + std::string{text}};
    }
    if (desk.IsBlockedByModal(*target.form)) {
        throw ConsoleError{"a modal form stands over " + std::string{text}};
    }
    return *target.control;
}

Json PropertyOf(const Target& target) {
    if (target.control == nullptr) {
        for (const FormProperty& row : kFormProperties) {
            if (row.name == target.property || (target.property.empty() && row.name == "caption")) {
                return row.value(*target.form);
            }
        }
        throw ConsoleError{"a form has no property " + target.property};
    }
    if (target.property.empty()) {
        return DefaultValueOf(*target.control);
    }
    if (const auto pixel = PixelOf(*target.control, target.property)) {
        return *pixel;
    }
    for (const ControlProperty& row : kControlProperties) {
        if (row.name == target.property) {
            return row.value(*target.control);
        }
    }
    throw ConsoleError{"unknown property " + target.property};
}

Json RowsOf(const Control& control) {
    if (!IsRow(control.kind)) {
        throw ConsoleError{"no list: " + control.FullName()};
    }
    Json rows = Json::array();
    if (control.kind == ControlKind::List) {
        for (const std::string& item : control.State().items) {
            rows.push_back(Json::array({TextJson(item)}));
        }
        return rows;
    }
    const auto& view = static_cast<const ListView&>(control);
    for (std::size_t row = 0; row < view.RowCount(); ++row) {
        Json cells = Json::array();
        for (std::size_t column = 0; column < view.State().columns.size(); ++column) {
            cells.push_back(TextJson(view.Cell(row, column)));
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

Json FormsOf(const Desk& desk) {
    Json forms = Json::array();
    for (const Form* form : desk.Forms()) {
        forms.push_back({{"name", form->name},
                         {"visible", form->IsVisible()},
                         {"minimised", form->IsMinimised()},
                         {"modal", form->IsModal()},
                         {"active", form->IsActive()}});
    }
    return forms;
}

Json ControlsOf(const Form& form) {
    Json controls = Json::array();
    for (const Control* control : form.Controls()) {
        Json row{{"name", control->FullName()}, {"kind", KindName(control->kind)}};
        row[control->kind == ControlKind::TextBox ? "text" : "caption"] = TextOf(*control);
        for (const std::string_view name : {"visible", "enabled", "toolTip", "foreColor", "backColor", "fontSize",
                                            "left", "top", "width", "height", "tabIndex"}) {
            row[std::string{name}] =
                PropertyOf({.form = nullptr, .control = const_cast<Control*>(control), .property = std::string{name}});
        }
        row["tabStop"] = control->State().tabStop;
        if (HasChoice(*control) || control->kind == ControlKind::Menu) {
            row["checked"] = control->State().chosen;
        }
        if (control->kind == ControlKind::Timer) {
            row["interval"] = control->State().interval;
        }
        controls.push_back(std::move(row));
    }
    return controls;
}

}  // namespace tallyhut
