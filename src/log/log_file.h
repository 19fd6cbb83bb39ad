#pragma once

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

/// Log.txt in the working directory. Opened and closed within each call.
struct LogFile {
    Files& files;
    const Directories& directories;

    std::string Path() const { return WorkingFile(directories, "Log.txt"); }
    bool Exists() const { return files.FileExists(Path()) || files.FolderExists(Path()); }
    /// Throws PlatformError.
    std::string Read() const { return files.Read(Path()); }
    /// The contact is on the disk when this returns. Throws LogWriteError; the file is then as it was.
    void Append(const Contact& contact);
    /// Writes all contacts, replacing the file in one step. Throws LogWriteError; the file is then as it was.
    void Rewrite(const ContactLog& log);
};

/// What the operator is told when a contact did not reach the file.
LogWriteError ContactNotLogged(const Contact& contact, const std::string& reason);

}  // namespace tallyhut
