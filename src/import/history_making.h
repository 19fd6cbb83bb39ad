#pragma once

#include <string>

#include "contest/contest.h"
#include "forms/Form1.h"
#include "import/gathered_history.h"
#include "import/log_reading.h"
#include "platform/files.h"
#include "support/directories.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Makes the logs of some years into one call history.
struct HistoryMaking {
    Form1& form;
    Desk& desk;
    const Directories& directories;
    const Contest& contest;
    Files& files;
    const LogReading& reading;

    /// Asks for one log after the other until the operator cancels, then where to save. What fails is told in a box; a
    /// log that cannot be read costs none of the others.
    void mnuMakeHistory_Click();

private:
    /// What was read so far.
    struct Gathered {
        GatheredHistory history;
        std::size_t logs = 0;
        std::size_t notUnderstood = 0;
    };

    Gathered Gather();
    void Save(const Gathered& gathered);
};

}  // namespace tallyhut
