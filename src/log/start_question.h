#pragma once

#include "log/entry_flow.h"
#include "log/file_menu.h"
#include "log/station.h"

namespace tallyhut {

/// What the operator is asked at every start: the station, and whether the contest goes on.
struct StartQuestion {
    Desk& desk;
    Station& station;
    FileMenu& fileMenu;
    LogReload& reload;
    EntryFlow& entry;
    const Contest& contest;

    /// A failure is told in a box, and the next step follows. A log that cannot be written is fatal here as everywhere.
    void PromptLogStart();
};

}  // namespace tallyhut
