#pragma once

#include "log/preferences_file.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Compares the stored offset to UTC with the machine's and offers the machine's where they differ.
struct UtcOffsetCheck {
    Desk& desk;
    Preferences& preferences;
    PreferencesFile& preferencesFile;

    /// An answer that is no number, or none of a clock, keeps the old one. A new one that cannot be stored is told.
    void CheckUtcOffset();

private:
    void Store();
};

/// Hours to add to the local time for UTC, rounded to two decimals.
float RecommendedOffset(const DateTime& local, const DateTime& utc);

}  // namespace tallyhut
