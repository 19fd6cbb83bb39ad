#include "views/views_part.h"

namespace tallyhut {

ViewsPart::ViewsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig)
    : mapForm{desk},
      planForm{desk},
      graphForm{desk},
      statsForm{desk},
      sectionMap{
          mapForm,     log.form1, log.contest, machine.screen, {machine.files, support.directories}, machine.dataFolder,
          machine.seed},
      privileges{planForm, machine.files, support.directories, rig.rigLine},
      graph{graphForm, log.contest.log, {machine.files, support.directories}},
      bandStats{statsForm, log.contest.log} {
    Bind(log.form1);
}

void ViewsPart::Bind(Form1& form1) {
    form1.mnuMap.Click = [this] { sectionMap.Open(); };
    form1.mnuPrivileges.Click = [this] { planForm.Show(); };
    form1.mnuGraph.Click = [this] { graph.Open(); };
    form1.mnuBandStats.Click = [this] { bandStats.Open(); };
    BindMap();
    BindPlan();
    BindGraph();
    BindStats();
}

void ViewsPart::BindMap() {
    mapForm.Form_Load = [this] { sectionMap.SectionMap_Load(); };
    mapForm.Form_Unload = [this] { sectionMap.SectionMap_Unload(); };
    mapForm.Timer1.Elapsed = [this] { sectionMap.Timer1_Timer(); };
    mapForm.Picture1.MouseMove = [this] { sectionMap.Picture1_MouseMove(); };
    for (int i = 1; i <= mapForm.lblCounty.Last(); ++i) {
        mapForm.lblCounty(i).MouseMove = [this, i] { sectionMap.lblCounty_MouseMove(i); };
    }
    mapForm.cmdSave.Click = [this] { sectionMap.cmdSave_Click(); };
    mapForm.cmdDone.Click = [this] { mapForm.Unload(); };
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

void ViewsPart::BindGraph() {
    graphForm.Form_Load = [this] { graph.GraphQSO_Load(); };
    graphForm.Form_Unload = [this] { graph.GraphQSO_Unload(); };
    graphForm.picGraph.MouseMove = [this] { graph.picGraph_MouseMove(); };
    for (int i = graphForm.lblBnd.First(); i <= graphForm.lblBnd.Last(); ++i) {
        graphForm.lblBnd(i).MouseMove = [this, i] { graph.lblBnd_MouseMove(i); };
    }
    graphForm.Command1.Click = [this] { graph.Command1_Click(); };
    graphForm.cmdSave.Click = [this] { graph.cmdSave_Click(); };
    graphForm.cmdDone.Click = [this] { graphForm.Unload(); };
}

void ViewsPart::BindStats() {
    statsForm.Form_Load = [this] { bandStats.frmbndstats_Load(); };
    statsForm.Command1.Click = [this] { bandStats.Command1_Click(); };
}

void ViewsPart::AddTo(ToldNames& told) const {
    const auto add = [this, &told](const char* name, auto column) {
        told.AddTable(name, [this, column](int position) {
            const bool isOne = position >= 0 && position < static_cast<int>(RateCurve::kEntries);
            return isOne ? std::optional{ToldNames::Told((graph.curve.*column).at(static_cast<std::size_t>(position)))}
                         : std::nullopt;
        });
    };
    add("RateRaw", &RateCurve::RateRaw);
    add("RateSmooth", &RateCurve::RateSmooth);
    add("RateColor", &RateCurve::RateColor);
    told.Add("RateMin", graph.curve.RateMin);
    told.Add("RateMax", graph.curve.RateMax);
}

}  // namespace tallyhut
