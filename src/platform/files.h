#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform_error.h"

namespace tallyhut {

/// Which file it is, and how long. Equal marks of one path at two moments: nobody has removed, swapped, cut or
/// lengthened the file between them.
struct FileMark {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t length = 0;  ///< bytes

    bool operator==(const FileMark&) const = default;
};

/// Another file than the expected one stands there, none, or one of another length. Nothing was written.
struct FileChangedError : PlatformError {
    using PlatformError::PlatformError;
};

/// The new content stands in the file for everybody who reads it, but the disk has not confirmed that it would still do
/// so after a loss of power. It is not lost, and need not be written again.
struct UnconfirmedError : PlatformError {
    using PlatformError::PlatformError;
};

/// Files and folders. Paths and contents are bytes as they stand. Every failure throws PlatformError with the path and
/// the system's own reason. What is no regular file (a folder, device, pipe or socket) is neither read nor written, and
/// refused at once.
struct Files {
    virtual ~Files() = default;

    /// Held while the program uses a folder; letting go of it frees the folder.
    struct FolderLock {
        virtual ~FolderLock() = default;
        /// False when another folder stands at the path by now, or none: what is written there is not under this lock.
        virtual bool StillHolds() const = 0;
    };

    /// A file that is open to be read in parts, by any thread. It stays the same file when another takes its place or
    /// it is removed.
    struct Reader {
        virtual ~Reader() = default;
        /// Of the file as it was opened.
        virtual std::uint64_t Length() const = 0;
        /// The bytes from the offset on, fewer only where the file ends now.
        virtual std::string Part(std::uint64_t offset, std::size_t bytes) const = 0;
    };

    virtual std::string Read(const std::string& path) const = 0;
    virtual std::unique_ptr<Reader> OpenToRead(const std::string& path) const = 0;
    /// Adds one whole record with one write and brings it to the disk before it returns. Begins with a line end (CR LF)
    /// if the file's last line lacks one. Makes the file if there is none. A failure leaves the file as it was before;
    /// UnconfirmedError where the record could neither be brought to the disk nor taken back.
    virtual void Append(const std::string& path, std::string_view record) = 0;
    /// Append to the very file that has the mark; with none, to a new file where no file stands. Looks before anything
    /// is written and throws FileChangedError if it is otherwise. Returns the file's mark with the record.
    virtual FileMark Append(const std::string& path, std::string_view record,
                            const std::optional<FileMark>& expected) = 0;
    /// Puts the content in the file's place in one step: at any instant the old content stands there or the new one,
    /// and the new one is on the disk when this returns. A link is followed, and the file's mode is kept. What is
    /// write-protected is refused. A failure leaves the old file; only UnconfirmedError leaves the new one. Returns
    /// the mark of the new file.
    virtual FileMark Replace(const std::string& path, std::string_view content) = 0;
    /// Writes the content over what the file held, from its first byte, and brings it to the disk; makes the file if
    /// there is none. A failure leaves the file as far as it was written: for reports, never for what must not be lost.
    virtual void Write(const std::string& path, std::string_view content) = 0;
    /// A plain copy of a file, replacing what stands at the target in one step, with the failures of Replace.
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    /// Whether something stands there that is no folder. Throws when that cannot be told, as do the two below.
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    /// The mark of the file that stands there; none where FileExists says no.
    virtual std::optional<FileMark> Mark(const std::string& path) const = 0;
    /// True when both paths lead to one file that is there, through links too. Throws when that cannot be told.
    virtual bool IsSameFile(const std::string& one, const std::string& other) const = 0;
    /// The paths of the regular files that lie in a folder, by name; none for a folder that is not there.
    virtual std::vector<std::string> FilesIn(const std::string& folder) const = 0;
    /// Makes the last level only; the parent must exist.
    virtual void MakeFolder(const std::string& path) = 0;
    /// Removes a regular file.
    virtual void Remove(const std::string& path) = 0;
    /// The folder the program was started in.
    virtual std::string CurrentFolder() const = 0;
    /// Throws PlatformError, saying so, when the folder cannot be written.
    virtual void CheckWritable(const std::string& folder) const = 0;
    /// Removes the new files beside old ones that a killed run of ours had not yet put in their places: what bears such
    /// a name (IsTemporaryName), is a regular file of this user and no link to one, and is not being written at this
    /// moment. What cannot be removed stays and is no failure: nothing is lost by it.
    virtual void RemoveLeftovers(const std::string& folder) = 0;
    /// Null when another program holds the folder. A folder that its file system cannot lock counts as free; one that
    /// is not there throws.
    virtual std::unique_ptr<FolderLock> Lock(const std::string& folder) = 0;
};

}  // namespace tallyhut
