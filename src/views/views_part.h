#pragma once

#include "log/log_part.h"
#include "rig/rig_part.h"
#include "views/band_stats.h"
#include "views/privileges.h"

namespace tallyhut {

/// Pictures of the contest and of the bands.
struct ViewsPart {
    ViewsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig);

    frmBandPlan planForm;
    frmbndstats statsForm;

    Privileges privileges;
    BandStats bandStats;

private:
    void Bind(Form1& form1);
    void BindPlan();
    void BindStats();
};

}  // namespace tallyhut
