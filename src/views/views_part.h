#pragma once

#include "log/log_part.h"
#include "views/band_stats.h"

namespace tallyhut {

/// Pictures of the contest and of the bands.
struct ViewsPart {
    ViewsPart(Machine& machine, Desk& desk, LogPart& log);

    frmbndstats statsForm;

    BandStats bandStats;

private:
    void Bind(Form1& form1);
    void BindStats();
};

}  // namespace tallyhut
