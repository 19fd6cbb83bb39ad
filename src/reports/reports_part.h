#pragma once

#include "log/log_part.h"
#include "reports/check_log.h"
#include "reports/entry_form.h"
#include "reports/log_exports.h"
#include "reports/paper_reports.h"

namespace tallyhut {

/// What leaves the program: the entry, the reports of the old manner, the exports.
struct ReportsPart {
    ReportsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log);

    Form2 form2;
    frmCheckLog checkForm;

    EntryForm entryForm;
    PaperReports paperReports;
    LogExports exports;
    CheckLog check;

private:
    void Bind(Form1& form1, LogGuard& guard);
};

}  // namespace tallyhut
