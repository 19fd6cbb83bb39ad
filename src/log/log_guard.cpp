#include "log/log_guard.h"

#include "platform/platform_error.h"
#include "support/free_name.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr const char* kRecoveredStem = "Log-recovered";
constexpr const char* kFoundStem = "Log-found";
constexpr const char* kGap = "\r\n\r\n";

MessageBox ChangedBox(const std::string& found, const std::string& kept) {
    return {.title = "Log.txt has changed",
            .text =
                "Another program or hand has changed the log since this program last wrote it, so nothing was "
                "written now. " +
                found + kGap + kept + kGap +
                "Yes reads Log.txt again as it is now. No goes on with the contacts of this program; a copy of "
                "Log.txt is made first.",
            .buttons = Buttons::YesNo,
            .icon = Icon::Exclamation};
}

MessageBox MissingBox(const std::string& found, const std::string& kept) {
    return {.title = "Log.txt has changed",
            .text = "Another program or hand has taken the log away, so nothing was written now. " + found + kGap +
                    kept + kGap + "Yes writes Log.txt anew with the contacts of this program.",
            .buttons = Buttons::YesNo,
            .icon = Icon::Exclamation};
}

}  // namespace

void LogGuard::OpenIfUnopened() {
    if (reload.opened) {
        return;
    }
    const std::optional<FileMark> found = file.files.Mark(file.Path());
    if (found && found->length > 0) {
        reload.mnuopen2();
    } else {
        file.mark = found;
        reload.opened = true;  // there was nothing to read
    }
}

void LogGuard::Adopt() {
    const std::optional<FileMark> found = file.files.Mark(file.Path());
    if (found != file.mark && contest.log.gContactCount() > 0) {
        WriteBeside();
    }
    file.mark = found;
}

void LogGuard::Reopen() {
    if (contest.log.gContactCount() > 0) {
        Adopt();
    }
    reload.mnuopen2();
}

bool LogGuard::Add(const Contact& contact) {
    try {
        contest.log.Add(contact);
        file.Append(contact);
    } catch (const LogFullError& full) {
        throw LogWriteError{std::string{full.what()} + "\n\nThis contact was not logged: " + ExchangeText(contact)};
    } catch (const FileChangedError&) {
        contest.log.Remove(contest.log.gContactCount());
        TellOfOtherHand();
        return false;
    }
    return true;
}

void LogGuard::Rewrite() {
    if (Change([this] { file.Rewrite(contest.log); })) {
        reload.mnuopen2();
    }
}

bool LogGuard::Empty() {
    return Change([this] { file.Empty(); });
}

void LogGuard::Restore(const std::string& archive, const std::function<void()>& beforeTheEnd) {
    try {
        file.CopyFrom(archive);
    } catch (const FileChangedError&) {
        TellOfOtherHand();
        return;
    } catch (const UnconfirmedError&) {
        reload.mnuopen2(beforeTheEnd);
        throw;
    }
    reload.mnuopen2(beforeTheEnd);
}

bool LogGuard::Change(const std::function<void()>& change) {
    try {
        change();
    } catch (const FileChangedError&) {
        TellOfOtherHand();
        return false;
    } catch (const UnconfirmedError&) {
        reload.FollowDisk();
        throw;
    } catch (const LogWriteError&) {
        reload.FollowDisk();
        throw;
    }
    return true;
}

/// The contacts of this program may stand nowhere else: they are written beside the log before anything is asked.
void LogGuard::TellOfOtherHand() {
    const std::string kept = TryWritingBeside();
    const std::string found = file.WhatStands();
    const bool missing = !file.Exists();
    const bool yes = desk.dialogs.Show((missing ? MissingBox : ChangedBox)(found, kept)) == Answer::Yes;
    if (missing && yes) {
        file.mark.reset();
        Rewrite();
    } else if (yes) {
        reload.mnuopen2();
    } else if (!missing) {
        GoOnWithMemory();
    }
}

std::string LogGuard::WriteBeside() {
    std::string path = FreeName(file.files, WorkingFile(file.directories, kRecoveredStem), ".txt");
    file.files.Replace(path, LogText(contest.log));
    return path;
}

std::string LogGuard::TryWritingBeside() try {
    const std::int32_t count = contest.log.gContactCount();
    if (count == 0) {
        return "This program holds no contacts.";
    }
    return "What this program has, " + PlainText(count) + (count == 1 ? " contact" : " contacts") + ", is in " +
           WriteBeside() + ".";
} catch (const PlatformError& failure) {
    return std::string{"The contacts of this program could not be kept beside it. "} + failure.what();
}

/// The mark is taken first: what the other hand adds behind the copy is noticed.
void LogGuard::GoOnWithMemory() {
    const std::optional<FileMark> found = file.files.Mark(file.Path());
    file.files.Copy(file.Path(), FreeName(file.files, WorkingFile(file.directories, kFoundStem), ".txt"));
    file.mark = found;
    Rewrite();
}

}  // namespace tallyhut
