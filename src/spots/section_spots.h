#pragma once

#include <string>

#include "contest/contest.h"
#include "log/panel.h"
#include "rig/rig_commands.h"
#include "spots/spot_table.h"

namespace tallyhut {

/// How often a section was worked, in all and on each band of the contest, as the line of partial calls shows it.
std::string SectionCounts(const Contest& contest, int section);

/// What the grid of sections has to do with spots: a needed section that is offered is a click away from being worked.
struct SectionSpots {
    Panel& panel;
    const Contest& contest;
    SpotTable& table;
    RigCommands& rig;

    /// Takes the section into its field, and works the newest spot that offers it.
    void Label10_MouseDown(int Index);
    /// Tells of the contacts with the section and of its newest spot.
    void Label10_MouseMove(int Index);
};

}  // namespace tallyhut
