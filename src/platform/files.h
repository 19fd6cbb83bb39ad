#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tallyhut {

/// Files and folders. Paths and contents are bytes as they stand. Every failure throws PlatformError with the path and
/// the system's own reason.
struct Files {
    virtual ~Files() = default;

    /// Held while the program uses a folder; letting go of it frees the folder.
    struct FolderLock {
        virtual ~FolderLock() = default;
    };

    virtual std::string Read(const std::string& path) const = 0;
    /// Adds one whole record with one write and brings it to the disk before it returns. Begins with a line end (CR LF)
    /// if the file's last line lacks one. Makes the file if there is none. A failure leaves the file as it was before.
    virtual void Append(const std::string& path, std::string_view record) = 0;
    /// Puts the content in the file's place in one step: at any instant the old content stands there or the new one,
    /// and the new one is on the disk when this returns. A link is followed, and the file's mode is kept. What is
    /// write-protected or no plain file is refused.
    virtual void Replace(const std::string& path, std::string_view content) = 0;
    /// Writes the content over what the file held, from its first byte, and brings it to the disk; makes the file if
    /// there is none. A failure leaves the file as far as it was written: for reports, never for what must not be lost.
    virtual void Write(const std::string& path, std::string_view content) = 0;
    /// A plain copy of a file, replacing what stands at the target in one step.
    virtual void Copy(const std::string& from, const std::string& to) = 0;
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool FolderExists(const std::string& path) const = 0;
    /// True when both paths lead to one file that is there, through links too.
    virtual bool IsSameFile(const std::string& one, const std::string& other) const = 0;
    /// Makes the last level only; the parent must exist.
    virtual void MakeFolder(const std::string& path) = 0;
    /// The folder the program was started in.
    virtual std::string CurrentFolder() const = 0;
    /// Throws PlatformError, saying so, when the folder cannot be written.
    virtual void CheckWritable(const std::string& folder) const = 0;
    /// Null when another program holds the folder. A folder that its file system cannot lock counts as free; one that
    /// is not there throws.
    virtual std::unique_ptr<FolderLock> Lock(const std::string& folder) = 0;
};

}  // namespace tallyhut
