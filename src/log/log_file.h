#pragma once

#include <functional>
#include <optional>
#include <stdexcept>

#include "contest/contact_log.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The log could not be written. Nothing but the top of the program takes it: whoever handles failures of files does
/// not handle this one. what() is for the operator: the file, the system's reason, and what was not saved.
struct LogWriteError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Log.txt in the working directory. Opened and closed within each call. What this program has read or written last is
/// what must stand there before it writes again: FileChangedError says that it does not, and nothing was written.
struct LogFile {
    Files& files;
    const Directories& directories;

    /// Makes sure, before each change, that the folder is this program's alone. Throws PlatformError.
    std::function<void()> holdFolder = [] {};
    std::optional<FileMark> mark = {};  ///< of the file as this program knows it; none while there is none

    std::string Path() const { return WorkingFile(directories, "Log.txt"); }
    /// The two below throw PlatformError.
    bool Exists() const { return files.FileExists(Path()) || files.FolderExists(Path()); }
    std::string Read() const { return files.Read(Path()); }
    /// Reads it as what this program goes on from. Throws PlatformError.
    std::string Open();

    /// The contact is on the disk when this returns. Throws FileChangedError, and LogWriteError; the file is then as it
    /// was, but where the message says otherwise.
    void Append(const Contact& contact);
    /// Writes all contacts, replacing the file in one step. Throws FileChangedError, LogWriteError, when the file is as
    /// it was, and UnconfirmedError, when it holds the contacts.
    void Rewrite(const ContactLog& log);
    /// Empties it, with the failures of Rewrite.
    void Empty();
    /// Puts a copy of another file in its place, to be opened next. Throws FileChangedError, UnconfirmedError, when the
    /// copy stands there, and PlatformError, when it is as it was.
    void CopyFrom(const std::string& other);

    /// What a look at the disk finds, for people: "/contest/Log.txt holds 500 contacts."
    std::string WhatStands() const;

private:
    void CheckUnchanged() const;
    void Replace(const std::string& content, const std::string& notDone);
};

/// The contacts as they stand in the file.
std::string LogText(const ContactLog& log);

/// How many whole records a text begins with.
std::int32_t RecordCount(std::string_view text);

}  // namespace tallyhut
