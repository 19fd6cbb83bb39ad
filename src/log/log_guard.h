#pragma once

#include "log/log_reload.h"

namespace tallyhut {

/// The net under the log that nobody sees until it is needed: a log that the start could not open is opened before
/// anything is added to it or taken from it, and a log that another hand has changed is not written over.
struct LogGuard {
    Desk& desk;
    Contest& contest;
    LogFile& file;
    LogReload& reload;

    /// Opens the log if this run has not and contacts stand in it. Throws PlatformError when that cannot be told.
    void OpenIfUnopened();
    /// For a log that is about to be replaced whole: what stands there now is what this program goes on from. Where
    /// another hand has changed it, the contacts of this program are written beside it first: they may stand nowhere
    /// else. Throws PlatformError.
    void Adopt();
    /// Reads the log again. Where another hand has changed it, the contacts of this program are written beside it
    /// first: where that fails, nothing is read. Throws PlatformError.
    void Reopen();
    /// The contact becomes the next row and the next record. False where another hand has changed the file: that has
    /// been told, and nothing is logged. Throws LogWriteError.
    bool Add(const Contact& contact);
    /// Writes the tables and reads them back. Where another hand has changed the file, that is told and nothing
    /// written. Throws LogWriteError, and UnconfirmedError behind a change that was made; memory then holds what the
    /// disk does.
    void Rewrite();
    /// Empties the log, with the failures of Rewrite; false where another hand has changed it, which has been told.
    bool Empty();
    /// Puts a copy of another file in the log's place and opens it; likewise where another hand has changed it. The
    /// step is that of the reload. Throws PlatformError where the log is as it was, and UnconfirmedError behind a
    /// change that was made.
    void Restore(const std::string& archive, const std::function<void()>& beforeTheEnd);

private:
    /// Runs a change of the whole file; false where another hand has changed it, which has been told.
    bool Change(const std::function<void()>& change);
    void TellOfOtherHand();
    std::string WriteBeside();
    std::string TryWritingBeside();
    void GoOnWithMemory();
};

}  // namespace tallyhut
