#include "log/entry_fields.h"

#include "values/number.h"

namespace tallyhut {

void EntryFields::Empty() {
    for (TextBox* box : {&form.txtNum, &form.txtPre, &form.txtCall, &form.txtCK, &form.txtSec}) {
        box->SetText("");
    }
}

void EntryFields::HideRowButtons() {
    form.cmdEdit.SetVisible(false);
    form.cmdDelete.SetVisible(false);
}

void EntryFields::ShowNextSerial() {
    form.lblNumCurCon.SetCaption(" " + NumberForm(contest.log.NextSerial()));
}

}  // namespace tallyhut
