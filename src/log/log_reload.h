#pragma once

#include "log/contest_display.h"
#include "log/log_file.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Rebuilds the tables and every count from Log.txt. Whatever rewrites or replaces the file runs it afterwards, and
/// nothing else repairs a count.
struct LogReload {
    Desk& desk;
    Contest& contest;
    LogFile& file;
    ContestDisplay& display;

    /// Any failure is told in a box and ends the program; the file is left as it is.
    void mnuopen2();

private:
    void Clear();
    void ReadAll();
    void CountSection(const Contact& contact);
};

}  // namespace tallyhut
