#pragma once

#include "log/contact_list.h"
#include "log/contact_log.h"
#include "log/entry_fields.h"
#include "log/log_file.h"
#include "log/section_table.h"
#include "log/time_stats.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Rebuilds the tables and every count from Log.txt. Whatever rewrites or replaces the file runs it afterwards, and
/// nothing else repairs a count.
struct LogReload {
    Form1& form;
    ContactLog& log;
    SectionTable& sections;
    const Preferences& preferences;
    LogFile& file;
    EntryFields& fields;
    ContactList& list;
    RateLabels& rates;
    Desk& desk;

    /// Any failure is told in a box and ends the program; the file is left as it is.
    void mnuopen2();
    /// Shows the counts, the list and the next serial number as they are in memory.
    void ShowCounts();
    /// Of these, sections, score, contacts and the list.
    void ShowTotals();

private:
    void Clear();
    void ReadAll();
    void CountSection(const Contact& contact);
};

}  // namespace tallyhut
