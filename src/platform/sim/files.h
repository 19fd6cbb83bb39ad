#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/files.h"

namespace tallyhut::sim {

/// Files and folders in memory, with the reasons of failure of the real ones and more that can be arranged. A path may
/// be relative to the current folder; the sets and maps below hold whole paths, without "." and "..".
struct Files : tallyhut::Files {
    /// Starts with the current folder and those above it, and no file.
    explicit Files(const std::string& currentFolder = "/contest");

    std::string Read(const std::string& path) const override;
    std::unique_ptr<Reader> OpenToRead(const std::string& path) const override;
    void Append(const std::string& path, std::string_view record) override;
    FileMark Append(const std::string& path, std::string_view record, const std::optional<FileMark>& expected) override;
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
    std::string CurrentFolder() const override { return currentFolder_; }
    void CheckWritable(const std::string& folder) const override;
    void RemoveLeftovers(const std::string& folder) override;
    std::unique_ptr<FolderLock> Lock(const std::string& folder) override;

    /// Makes the folder, with those above it, and the program starts there.
    void SetCurrentFolder(const std::string& path);
    /// Makes the folder and those above it; no operation of the program.
    void AddFolder(const std::string& path);
    /// Puts another file there, as another program does, and makes the folders above it; no operation of the program.
    void Put(const std::string& path, const std::string& content);
    /// Puts another folder, with other files to come, in the folder's place; a lock on the former one stays with that.
    void SwapFolder(const std::string& path);

    /// Makes the nth Append, Replace, Write, Copy, MakeFolder or Remove from now fail for the reason, leaving all as it
    /// was; a Write leaves the first half of what it was to write. 1 is the next one.
    void FailAt(int nth, const std::string& reason);
    /// Makes the nth of those do its work and then fail with UnconfirmedError for the reason. Only an Append, a Replace
    /// or a Copy may be the nth.
    void FailBehind(int nth, const std::string& reason);
    /// How often one of those was asked for, also where it failed.
    int Operations() const { return operations_; }

    std::set<std::string> readOnlyFolders;  ///< what lies directly in one cannot be changed, as on a read-only medium
    std::set<std::string> lockedFolders;    ///< held by another program
    std::set<std::string> irregular;        ///< what is a device, pipe or socket
    /// By whole path, why the machine cannot say what stands there: looks, reads and changes fail with it.
    std::map<std::string, std::string> unreachable;

    struct Appended {
        std::string path;    ///< whole
        std::string record;  ///< as it was handed over
    };
    std::vector<Appended> appends;                ///< those that succeeded, in order
    std::map<std::string, std::string> contents;  ///< every file by its path

    /// Which folders are locked, and how often another was put in a folder's place.
    struct Held {
        std::set<std::pair<std::string, int>> locked;
        std::map<std::string, int> swaps;
    };

private:
    std::string Whole(const std::string& path) const;
    /// Counts the operation and throws for what stands in its way at the place, which is a whole path.
    void BeginChange(const std::string& path, const std::string& place);
    /// Throws if this operation is to fail behind its work.
    void EndChange(const std::string& path);
    void CheckReachable(const std::string& path, const std::string& place) const;
    void CheckReadable(const std::string& path, const std::string& place) const;
    void RefuseIrregular(const std::string& path, const std::string& place) const;
    /// The content takes the place of what stood there, as another file.
    void PutAnew(const std::string& place, std::string_view content);
    FileMark MarkAt(const std::string& place) const;
    /// Why nothing can stand there: 0, ENOENT or ENOTDIR.
    int Obstacle(const std::string& place) const;

    std::string currentFolder_;
    std::set<std::string> folders_;
    std::map<std::string, std::uint64_t> inodes_;  // of files; one that a test has put into `contents` has 0
    std::uint64_t lastInode_ = 0;
    std::map<int, std::string> failures_;        // by the count of operations
    std::map<int, std::string> failuresBehind_;  // the same
    int operations_ = 0;
    std::shared_ptr<Held> held_ = std::make_shared<Held>();  // outlives us in locks
};

}  // namespace tallyhut::sim
