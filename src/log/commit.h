#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "log/contest_display.h"
#include "log/duplicates.h"
#include "log/log_guard.h"
#include "log/post_contest.h"

namespace tallyhut {

/// The one way of a contact into the log. The order of its steps is part of what the operator relies on.
struct Commit {
    Panel& panel;
    Contest& contest;
    LogGuard& guard;
    OperatingTime& time;
    PostContest& postContest;
    Duplicates& duplicates;
    ContestDisplay& display;

    /// What is known of a code that is none of the sections; empty for nothing.
    std::function<std::string(std::string_view code)> hintOnSection = [](std::string_view) { return std::string{}; };

    /// The contact of a row stands on the disk. Its section does not count it yet. Must not fail.
    std::function<void(std::int32_t row)> logged = [](std::int32_t) {};

    std::uint8_t gIncomplete = 0;
    std::uint8_t gBadSection = 0;
    bool committing = false;     ///< Mains is running
    bool messageStands = false;  ///< what Mains ends with is on the line: leaving the call field adds nothing to it

    /// Checks the entry and logs it if it is complete, new and of a known section. Throws LogWriteError when the
    /// contact cannot be written. Asked for inside itself, it does nothing.
    void Mains();
    /// Every missing field writes its message and takes the focus; the field that comes first in the exchange stays.
    void frmcmp();
    void ValidateSection();
    /// Counts the section in txtSec.
    void TallySection();

private:
    bool LogContact();
    void EndWithMessage();
    /// The code of what stands in txtSec: an alias is never logged.
    std::string_view SectionCode() const;
    Contact EnteredContact() const;
    void BeginNextEntry();
};

}  // namespace tallyhut
