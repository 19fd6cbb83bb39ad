#pragma once

#include "platform/files.h"

namespace tallyhut {

/// The machine's files. What it writes is on the disk, with the folder's entry for it, before a call returns.
///
/// Making one sets the process to ignore the signal of the file size limit.
struct PosixFiles : Files {
    PosixFiles();

    std::string Read(const std::string& path) const override;
    std::unique_ptr<Reader> OpenToRead(const std::string& path) const override;
    void Append(const std::string& path, std::string_view record) override;
    FileMark Append(const std::string& path, std::string_view record, const std::optional<FileMark>& expected) override;
    /// Refuses a file that the user may not write, although its folder would let it be replaced.
    FileMark Replace(const std::string& path, std::string_view content) override;
    void Write(const std::string& path, std::string_view content) override;
    void Copy(const std::string& from, const std::string& to) override;
    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    std::optional<FileMark> Mark(const std::string& path) const override;
    bool IsSameFile(const std::string& one, const std::string& other) const override;
    std::vector<std::string> FilesIn(const std::string& folder) const override;
    void MakeFolder(const std::string& path) override;
    void Remove(const std::string& path) override;
    std::string CurrentFolder() const override;
    void CheckWritable(const std::string& folder) const override;
    void RemoveLeftovers(const std::string& folder) override;
    std::unique_ptr<FolderLock> Lock(const std::string& folder) override;
};

}  // namespace tallyhut
