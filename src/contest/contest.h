#pragma once

#include "contest/contact_log.h"
#include "contest/preferences.h"
#include "contest/section_table.h"
#include "values/date_time.h"

namespace tallyhut {

/// The contest as it stands: who takes part, whom he has worked, and the sections that are worked by it. The counts of
/// the sections are those of the contacts; whoever changes the contacts counts anew.
struct Contest {
    Preferences preferences;
    ContactLog log;
    SectionTable sections;
};

/// UTC by the operator's offset, taken as minutes: 3.5 hours are 3 hours and 30 minutes.
inline DateTime UtcOf(const DateTime& local, const Preferences& preferences) {
    return AddMinutes(local, static_cast<double>(preferences.gUtcOffset) * 60);
}

}  // namespace tallyhut
