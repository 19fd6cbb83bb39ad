#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

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

    bool opened = false;  ///< the log has been read in this run

    /// Any failure is told in a box and ends the program; the file is left as it is, unless the step before the end
    /// puts another one back.
    void mnuopen2(const std::function<void()>& beforeTheEnd = {});
    /// Brings memory and screen to what the disk holds, behind a change that failed; where the disk does not say, the
    /// screen to what is in memory.
    void FollowDisk();

private:
    std::optional<std::string> TextOnDisk();
    void Clear();
    void Take(std::string_view text);
    void CountSection(const Contact& contact);
};

}  // namespace tallyhut
