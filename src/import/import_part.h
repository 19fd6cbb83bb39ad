#pragma once

#include "import/history_making.h"
#include "import/log_import.h"
#include "log/log_part.h"

namespace tallyhut {

/// What comes into the program from other logs: whole contests, and what is known of calls.
struct ImportPart {
    ImportPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log);

    frmImport importForm;

    LogReading reading;
    LogImport logImport;
    HistoryMaking history;

private:
    void Bind(Form1& form1);
};

}  // namespace tallyhut
