#include "views/views_part.h"

namespace tallyhut {

ViewsPart::ViewsPart(Machine& /*machine*/, Desk& desk, LogPart& log)
    : statsForm{desk}, bandStats{statsForm, log.contest.log} {
    Bind(log.form1);
}

void ViewsPart::Bind(Form1& form1) {
    form1.mnuBandStats.Click = [this] { bandStats.Open(); };
    BindStats();
}

void ViewsPart::BindStats() {
    statsForm.Form_Load = [this] { bandStats.frmbndstats_Load(); };
    statsForm.Command1.Click = [this] { bandStats.Command1_Click(); };
}

}  // namespace tallyhut
