#include "forms/qt/form_layout.h"

#include "forms/qt/form1_layout.h"
#include "forms/qt/generic_layout.h"
#include "forms/qt/logo_layout.h"

namespace tallyhut {

std::unique_ptr<FormLayout> MakeLayout(Form& form, QWidget& window, FormMenus& menus) {
    if (form.name == "Form1") {
        return std::make_unique<Form1Layout>(window, menus);
    }
    if (form.name == "frmQ7ZZQLogo") {
        return std::make_unique<LogoLayout>(window);
    }
    return std::make_unique<GenericLayout>(form, window, menus);
}

}  // namespace tallyhut
