#pragma once

#include "log/log_part.h"
#include "rig/rig_part.h"
#include "views/activity_graph.h"
#include "views/band_stats.h"
#include "views/map_of_sections.h"
#include "views/privileges.h"

namespace tallyhut {

/// Pictures of the contest and of the bands.
struct ViewsPart {
    ViewsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig);

    SectionMap mapForm;
    frmBandPlan planForm;
    GraphQSO graphForm;
    frmbndstats statsForm;

    MapOfSections sectionMap;
    Privileges privileges;
    ActivityGraph graph;
    BandStats bandStats;

    void AddTo(ToldNames& told) const;

private:
    void Bind(Form1& form1);
    void BindMap();
    void BindPlan();
    void BindGraph();
    void BindStats();
};

}  // namespace tallyhut
