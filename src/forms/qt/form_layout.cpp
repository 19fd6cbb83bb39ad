#include "forms/qt/form_layout.h"

#include "forms/qt/form1_layout.h"
#include "forms/qt/generic_layout.h"
#include "forms/qt/logo_layout.h"
#include "forms/qt/picture_layout.h"
#include "forms/qt/table_layout.h"

namespace tallyhut {

bool IsValue(const Control& control) {
    return control.kind == ControlKind::Label && control.Design() != nullptr && control.Design()->text.empty();
}

bool IsCalledByCaption(const Control& control) {
    return control.kind == ControlKind::TextBox || control.kind == ControlKind::List ||
           control.kind == ControlKind::ListView || IsValue(control);
}

bool IsPressed(const Control& control) {
    return control.kind == ControlKind::Button || control.kind == ControlKind::Option ||
           control.kind == ControlKind::CheckBox;
}

std::unique_ptr<FormLayout> MakeLayout(Form& form, QWidget& window, FormMenus& menus) {
    if (form.name == "Form1") {
        return std::make_unique<Form1Layout>(window, menus);
    }
    if (form.name == "SpectrumMap") {
        return std::make_unique<PictureLayout>(form, window);
    }
    if (form.name == "frmQ7ZZQLogo") {
        return std::make_unique<LogoLayout>(window);
    }
    if (const FormTable table = TableOf(form.name); !table.empty()) {
        return std::make_unique<TableLayout>(form, table, window, menus);
    }
    return std::make_unique<GenericLayout>(form, window, menus);
}

}  // namespace tallyhut
