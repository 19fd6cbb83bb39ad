#include "reports/reports_part.h"

namespace tallyhut {

ReportsPart::ReportsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : form2{desk},
      entryForm{log.form1, form2, desk, support.directories, log.contest, support.shared, machine},
      paperReports{log.panel, log.contest, log.logFile, log.records, log.display, machine.printer},
      exports{log.form1,   desk,          support.directories,
              log.contest, machine.files, machine.environment.ShortDatePicture()} {
    Bind(log.form1, log.guard);
}

/// Each begins with the log open, so that none leaves out what a start could not read.
void ReportsPart::Bind(Form1& form1, LogGuard& guard) {
    form2.Form_Load = [this] { entryForm.Form2_Load(); };
    form2.Text2.KeyPress = [this](int& KeyAscii) { entryForm.Text2_KeyPress(KeyAscii); };
    form2.Command1.Click = [this] { entryForm.Command1_Click(); };
    form2.Command2.Click = [this] { entryForm.Command2_Click(); };
    form2.Command3.Click = [this] { entryForm.Command3_Click(); };
    form2.Command4.Click = [this] { entryForm.Command4_Click(); };
    form1.mnuCabrillo.Click = [this, &guard] {
        guard.OpenIfUnopened();
        entryForm.Open();
    };
    form1.mnuSummary.Click = [this, &guard] {
        guard.OpenIfUnopened();
        entryForm.Open();
    };
    form1.expADIF.Click = [this, &guard] {
        guard.OpenIfUnopened();
        exports.expADIF_Click();
    };
    form1.mnuExport.Click = [this, &guard] {
        guard.OpenIfUnopened();
        exports.mnuExport_Click();
    };
    form1.mnuCopyListtoClipboard.Click = [this, &guard] {
        guard.OpenIfUnopened();
        exports.mnuCopyListtoClipboard_Click();
    };
    form1.mnuPrintLog.Click = [this, &guard] {
        guard.OpenIfUnopened();
        paperReports.PrintLog();
    };
    form1.mnuPrintDupe.Click = [this, &guard] {
        guard.OpenIfUnopened();
        paperReports.PrintDupeSheet();
    };
    form1.mnuWriteLog.Click = [this, &guard] {
        guard.OpenIfUnopened();
        paperReports.WriteLogFile();
    };
    form1.mnuWriteDupe.Click = [this, &guard] {
        guard.OpenIfUnopened();
        paperReports.WriteDupeFile();
    };
}

}  // namespace tallyhut
