#include "import/import_part.h"

namespace tallyhut {

ImportPart::ImportPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : importForm{desk},
      reading{log.panel, machine.files},
      logImport{importForm, desk, support.directories, log.contest, machine, reading},
      history{log.form1, desk, support.directories, log.contest, machine.files, reading} {
    Bind(log.form1);
}

void ImportPart::Bind(Form1& form1) {
    importForm.Form_Load = [this] { logImport.frmImport_Load(); };
    importForm.cmdDone.Click = [this] { logImport.cmdDone_Click(); };
    form1.mnuImport.Click = [this] { logImport.mnuImport_Click(); };
    form1.mnuMakeHistory.Click = [this] { history.mnuMakeHistory_Click(); };
}

}  // namespace tallyhut
