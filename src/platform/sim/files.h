#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tallyhut::sim {

/// Files and folders in memory, with the reasons of failure of the real ones and more that can be arranged. A path may
/// be relative to the current folder; the sets and maps below hold whole paths, without "." and "..".
struct Files : tallyhut::Files {
    /// Starts with the current folder and those above it, and no file.
    explicit Files(const std::string& currentFolder = "/contest");

    std::string Read(const std::string& path) const override;
    void Append(const std::string& path, std::string_view record) override;
    void Replace(const std::string& path, std::string_view content) override;
    void Write(const std::string& path, std::string_view content) override;
    void Copy(const std::string& from, const std::string& to) override;
    bool FileExists(const std::string& path) const override;
    bool FolderExists(const std::string& path) const override;
    bool IsSameFile(const std::string& one, const std::string& other) const override;
    void MakeFolder(const std::string& path) override;
    std::string CurrentFolder() const override { return currentFolder_; }
    void CheckWritable(const std::string& folder) const override;
    std::unique_ptr<FolderLock> Lock(const std::string& folder) override;

    /// Makes the folder, with those above it, and the program starts there.
    void SetCurrentFolder(const std::string& path);
    /// Makes the folder and those above it; no operation of the program.
    void AddFolder(const std::string& path);
    /// Puts a file there and makes the folders above it; no operation of the program.
    void Put(const std::string& path, const std::string& content);

    /// Makes the nth Append, Replace, Write, Copy or MakeFolder from now fail for the reason, leaving all as it was; a
    /// Write leaves the first half of what it was to write. 1 is the next one.
    void FailAt(int nth, const std::string& reason);
    /// How often one of those was asked for, also where it failed.
    int Operations() const { return operations_; }

    std::set<std::string> readOnlyFolders;  ///< what lies directly in one cannot be changed, as on a read-only medium
    std::set<std::string> lockedFolders;    ///< held by another program

    struct Appended {
        std::string path;    ///< whole
        std::string record;  ///< as it was handed over
    };
    std::vector<Appended> appends;                ///< those that succeeded, in order
    std::map<std::string, std::string> contents;  ///< every file by its path

private:
    std::string Whole(const std::string& path) const;
    /// Counts the operation and throws for what stands in its way at the place, which is a whole path.
    void BeginChange(const std::string& path, const std::string& place);
    void CheckReadable(const std::string& path, const std::string& place) const;
    /// Why nothing can stand there: 0, ENOENT or ENOTDIR.
    int Obstacle(const std::string& place) const;

    std::string currentFolder_;
    std::set<std::string> folders_;
    std::map<int, std::string> failures_;  // by the count of operations
    int operations_ = 0;
    std::shared_ptr<std::set<std::string>> held_ = std::make_shared<std::set<std::string>>();  // outlives us in locks
};

}  // namespace tallyhut::sim
