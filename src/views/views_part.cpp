#include "views/views_part.h"

namespace tallyhut {

ViewsPart::ViewsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig)
    : planForm{desk},
      statsForm{desk},
      privileges{planForm, machine.files, support.directories, rig.rigLine},
      bandStats{statsForm, log.contest.log} {
    Bind(log.form1);
}

void ViewsPart::Bind(Form1& form1) {
    form1.mnuPrivileges.Click = [this] { planForm.Show(); };
    form1.mnuBandStats.Click = [this] { bandStats.Open(); };
    BindPlan();
    BindStats();
}

void ViewsPart::BindPlan() {
    planForm.Form_Load = [this] { privileges.frmBandPlan_Load(); };
    planForm.Form_Unload = [this] { privileges.Form_Unload(); };
    planForm.tmrRadio.Elapsed = [this] { privileges.tmrRadio_Elapsed(); };
    planForm.Command1.Click = [this] { privileges.Class_Click(0); };
    planForm.Command2.Click = [this] { privileges.Class_Click(1); };
    planForm.Command3.Click = [this] { privileges.Class_Click(2); };
    planForm.Command4.Click = [this] { privileges.Class_Click(3); };
    planForm.Command5.Click = [this] { privileges.Class_Click(4); };
    planForm.Command6.Click = [this] { privileges.Class_Click(5); };
    planForm.Command7.Click = [this] { planForm.Unload(); };
}

void ViewsPart::BindStats() {
    statsForm.Form_Load = [this] { bandStats.frmbndstats_Load(); };
    statsForm.Command1.Click = [this] { bandStats.Command1_Click(); };
}

}  // namespace tallyhut
