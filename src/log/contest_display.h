#pragma once

#include <functional>

#include "log/contact_list.h"
#include "log/off_time_clock.h"
#include "log/rate_labels.h"
#include "log/section_grid.h"

namespace tallyhut {

/// What the main form shows of the contest: the list, the grid of sections, the counts, the rates and the off times.
struct ContestDisplay {
    ContestDisplay(Form1& mainForm, const Contest& shown, UtcClock& utc, SettingsStore& settings);

    Form1& form;
    const Contest& contest;
    ContactList list;
    SectionGrid grid;
    RateLabels rates;
    OffTimeClock offTime;

    /// Contacts and sections have been counted, and shown so.
    std::function<void()> counted = [] {};

    /// Shows the counts, the list and the next serial number as they are in memory.
    void ShowCounts();
    /// Of these, sections, score, contacts and the list.
    void ShowTotals();
    /// Sections, sections to go and score, as a commit writes them.
    void ShowScore();
    /// What follows from the times of the contacts: the rates, and the off times.
    void ShowTimes();
};

}  // namespace tallyhut
