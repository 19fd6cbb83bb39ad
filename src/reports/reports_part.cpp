#include "reports/reports_part.h"

namespace tallyhut {

ReportsPart::ReportsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : form2{desk},
      checkForm{desk},
      entryForm{log.form1, form2, desk, support.directories, log.contest, support.shared, machine},
      paperReports{log.panel, log.contest, log.logFile, log.records, log.display, machine.printer},
      exports{log.form1, desk, support.directories, log.contest, machine.files, machine.environment.ShortDatePicture()},
      check{checkForm, desk, log.contest, log.editing, machine.files, support.directories} {
    check.knownCalls = [&log] { return log.knownCalls.All(); };
    Bind(log.form1, log.guard);
}

void ReportsPart::Bind(Form1& form1, LogGuard& guard) {
    form2.Form_Load = [this] { entryForm.Form2_Load(); };
    form2.Form_KeyPress = [this](int& KeyAscii) { entryForm.Form2_KeyPress(KeyAscii); };
    form2.Form_Unload = [this] { entryForm.typed.Keep(); };
    form2.cmdKept.Click = [this] { entryForm.typed.FillIn(); };
    form2.Text2.KeyPress = EntryForm::Text2_KeyPress;
    form2.Command1.Click = [this] { entryForm.Command1_Click(); };
    form2.Command2.Click = [this] { entryForm.Command2_Click(); };
    form2.Command3.Click = [this] { entryForm.Command3_Click(); };
    form2.Command4.Click = [this] { entryForm.Command4_Click(); };
    checkForm.Form_Load = [this] { check.frmCheckLog_Load(); };
    checkForm.lstFindings.Click = [this] { check.lstFindings_Click(); };
    checkForm.lstFindings.DblClick = [this] { check.cmdEdit_Click(); };
    checkForm.lstFindings.KeyDown = [this](int& KeyCode, int Shift) { check.lstFindings_KeyDown(KeyCode, Shift); };
    checkForm.cmdEdit.Click = [this] { check.cmdEdit_Click(); };
    checkForm.cmdDone.Click = [this] { checkForm.Hide(); };
    // Each begins with the log open, so that none leaves out what a start could not read.
    const auto withLog = [&guard](auto step) {
        return [&guard, step] {
            guard.OpenIfUnopened();
            step();
        };
    };
    form1.mnuCabrillo.Click = withLog([this] { entryForm.Open(); });
    form1.mnuSummary.Click = withLog([this] { entryForm.Open(); });
    form1.mnuCheckLog.Click = withLog([this] { check.mnuCheckLog_Click(); });
    form1.expADIF.Click = withLog([this] { exports.expADIF_Click(); });
    form1.expADIFX.Click = withLog([this] { exports.expADIFX_Click(); });
    form1.mnuExport.Click = withLog([this] { exports.mnuExport_Click(); });
    form1.mnuCopyListtoClipboard.Click = withLog([this] { exports.mnuCopyListtoClipboard_Click(); });
    form1.mnuPrintLog.Click = withLog([this] { paperReports.PrintLog(); });
    form1.mnuPrintDupe.Click = withLog([this] { paperReports.PrintDupeSheet(); });
    form1.mnuWriteLog.Click = withLog([this] { paperReports.WriteLogFile(); });
    form1.mnuWriteDupe.Click = withLog([this] { paperReports.WriteDupeFile(); });
}

}  // namespace tallyhut
