#pragma once

#include "log/contact_list.h"
#include "log/duplicates.h"
#include "log/log_file.h"
#include "log/post_contest.h"
#include "log/section_table.h"
#include "log/time_stats.h"

namespace tallyhut {

/// The one way of a contact into the log. The order of its steps is part of what the operator relies on.
struct Commit {
    Form1& form;
    ContactLog& log;
    SectionTable& sections;
    const Preferences& preferences;
    LogFile& file;
    EntryFields& fields;
    MessageLine& message;
    OperatingTime& time;
    PostContest& postContest;
    Duplicates& duplicates;
    ContactList& list;
    RateLabels& rates;
    Desk& desk;

    std::uint8_t gIncomplete = 0;
    std::uint8_t gBadSection = 0;
    bool committing = false;  ///< Mains is running

    /// Checks the entry and logs it if it is complete, new and of a known section. Throws LogWriteError when the
    /// contact cannot be written. Asked for inside itself, it does nothing.
    void Mains();
    /// Every missing field writes its message and takes the focus; the field that comes first in the exchange stays.
    void frmcmp();
    void ValidateSection();
    /// Counts the section in txtSec.
    void TallySection();

private:
    void LogContact();
    Contact EnteredContact() const;
    void Keep(const Contact& contact);
    void ShowScore();
    void BeginNextEntry();
};

}  // namespace tallyhut
