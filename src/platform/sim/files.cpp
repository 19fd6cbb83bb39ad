#include "platform/sim/files.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/path_error.h"
#include "platform/temporary_name.h"

namespace tallyhut::sim {

namespace {

struct OpenReader : Files::Reader {
    explicit OpenReader(std::string fileContent) : content(std::move(fileContent)) {}

    std::uint64_t Length() const override { return content.size(); }
    std::string Part(std::uint64_t offset, std::size_t bytes) const override {
        return offset < content.size() ? content.substr(offset, bytes) : "";
    }

    const std::string content;
};

struct HeldFolder : Files::FolderLock {
    HeldFolder(std::shared_ptr<Files::Held> held, const std::string& folder)
        : held_(std::move(held)), folder_(folder, held_->swaps[folder]) {
        held_->locked.insert(folder_);
    }
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;
    ~HeldFolder() override { held_->locked.erase(folder_); }

    bool StillHolds() const override { return held_->swaps[folder_.first] == folder_.second; }

private:
    std::shared_ptr<Files::Held> held_;
    std::pair<std::string, int> folder_;
};

std::string FolderOf(const std::string& place) {
    return std::filesystem::path(place).parent_path().string();
}

}  // namespace

Files::Files(const std::string& currentFolder) {
    SetCurrentFolder(currentFolder);
}

std::string Files::Whole(const std::string& path) const {
    if (path.empty()) {
        return path;  // names nothing
    }
    std::string place = (std::filesystem::path(currentFolder_) / path).lexically_normal().string();
    if (place.size() > 1 && place.ends_with('/')) {
        place.pop_back();
    }
    return place;
}

int Files::Obstacle(const std::string& place) const {
    for (std::string above = FolderOf(place); above != FolderOf(above); above = FolderOf(above)) {
        if (contents.contains(above)) {
            return ENOTDIR;
        }
    }
    return folders_.contains(FolderOf(place)) ? 0 : ENOENT;
}

void Files::CheckReachable(const std::string& path, const std::string& place) const {
    if (const auto reason = unreachable.find(place); reason != unreachable.end()) {
        throw PathError(path, reason->second);
    }
}

void Files::RefuseIrregular(const std::string& path, const std::string& place) const {
    if (folders_.contains(place)) {
        throw PathError(path, EISDIR);
    }
    if (irregular.contains(place)) {
        throw PathError(path, kNotRegular);
    }
}

void Files::CheckReadable(const std::string& path, const std::string& place) const {
    CheckReachable(path, place);
    RefuseIrregular(path, place);
    if (!contents.contains(place)) {
        const int obstacle = Obstacle(place);
        throw PathError(path, obstacle != 0 ? obstacle : ENOENT);
    }
}

void Files::BeginChange(const std::string& path, const std::string& place) {
    ++operations_;
    if (const auto failure = failures_.extract(operations_)) {
        throw PathError(path, failure.mapped());
    }
    CheckReachable(path, place);
    if (const int obstacle = Obstacle(place)) {
        throw PathError(path, obstacle);
    }
    if (readOnlyFolders.contains(FolderOf(place))) {
        throw PathError(path, EROFS);
    }
}

void Files::EndChange(const std::string& path) {
    if (const auto failure = failuresBehind_.extract(operations_)) {
        throw Unconfirmed(path, failure.mapped());
    }
}

void Files::PutAnew(const std::string& place, std::string_view content) {
    contents[place] = content;
    inodes_[place] = ++lastInode_;
}

FileMark Files::MarkAt(const std::string& place) const {
    const auto inode = inodes_.find(place);
    const auto content = contents.find(place);
    return {.inode = inode != inodes_.end() ? inode->second : 0,
            .length = content != contents.end() ? content->second.size() : 0};
}

std::string Files::Read(const std::string& path) const {
    const std::string place = Whole(path);
    CheckReadable(path, place);
    return contents.at(place);
}

std::unique_ptr<Files::Reader> Files::OpenToRead(const std::string& path) const {
    return std::make_unique<OpenReader>(Read(path));
}

void Files::Append(const std::string& path, std::string_view record) {
    Append(path, record, Mark(path));
}

FileMark Files::Append(const std::string& path, std::string_view record, const std::optional<FileMark>& expected) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    RefuseIrregular(path, place);
    if (Mark(path) != expected) {
        throw Changed(path);
    }
    if (!expected) {
        PutAnew(place, "");
    }
    std::string& content = contents[place];
    if (!content.empty() && !content.ends_with('\n')) {
        content += "\r\n";
    }
    content += record;
    appends.push_back({place, std::string(record)});
    EndChange(path);
    return MarkAt(place);
}

FileMark Files::Replace(const std::string& path, std::string_view content) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    RefuseIrregular(path, place);
    PutAnew(place, content);
    EndChange(path);
    return MarkAt(place);
}

void Files::Write(const std::string& path, std::string_view content) {
    const std::string place = Whole(path);
    const bool fails = failures_.contains(operations_ + 1) && Obstacle(place) == 0;
    if (fails && !folders_.contains(place) && !irregular.contains(place)) {
        contents[place] = content.substr(0, content.size() / 2);
    }
    BeginChange(path, place);
    RefuseIrregular(path, place);
    contents[place] = content;
}

void Files::Copy(const std::string& from, const std::string& to) {
    const std::string source = Whole(from);
    const std::string target = Whole(to);
    BeginChange(to, target);
    CheckReadable(from, source);
    RefuseIrregular(to, target);
    if (source == target) {
        throw PathError(to, kCopyOntoItself);
    }
    PutAnew(target, contents.at(source));
    EndChange(to);
}

bool Files::FileExists(const std::string& path) const {
    return Mark(path).has_value();
}

bool Files::FolderExists(const std::string& path) const {
    CheckReachable(path, Whole(path));
    return folders_.contains(Whole(path));
}

std::optional<FileMark> Files::Mark(const std::string& path) const {
    const std::string place = Whole(path);
    CheckReachable(path, place);
    const bool isThere = contents.contains(place) || irregular.contains(place);
    return isThere ? std::optional(MarkAt(place)) : std::nullopt;
}

bool Files::IsSameFile(const std::string& one, const std::string& other) const {
    CheckReachable(one, Whole(one));
    CheckReachable(other, Whole(other));
    return contents.contains(Whole(one)) && Whole(one) == Whole(other);
}

std::vector<std::string> Files::FilesIn(const std::string& folder) const {
    const std::string place = Whole(folder);
    CheckReachable(folder, place);
    std::vector<std::string> found;
    for (const auto& [path, content] : contents) {
        const bool within = path.starts_with(place + '/') && path.find('/', place.size() + 1) == std::string::npos;
        if (within && !irregular.contains(path)) {
            found.push_back(folder + path.substr(place.size()));
        }
    }
    return found;
}

void Files::MakeFolder(const std::string& path) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    if (folders_.contains(place) || contents.contains(place)) {
        throw PathError(path, EEXIST);
    }
    folders_.insert(place);
}

void Files::Remove(const std::string& path) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    CheckReadable(path, place);
    contents.erase(place);
}

void Files::CheckWritable(const std::string& folder) const {
    const std::string place = Whole(folder);
    if (const int obstacle = Obstacle(place + "/attempt")) {
        throw PathError(folder, obstacle);
    }
    if (readOnlyFolders.contains(place)) {
        throw PathError(folder, EROFS);
    }
}

void Files::RemoveLeftovers(const std::string& folder) {
    const std::string place = Whole(folder);
    std::erase_if(contents, [&](const auto& file) {
        return FolderOf(file.first) == place && IsTemporaryName(file.first.substr(file.first.rfind('/') + 1));
    });
}

std::unique_ptr<Files::FolderLock> Files::Lock(const std::string& folder) {
    const std::string place = Whole(folder);
    if (const int obstacle = Obstacle(place + "/attempt")) {
        throw PathError(folder, obstacle);
    }
    if (lockedFolders.contains(place) || held_->locked.contains({place, held_->swaps[place]})) {
        return nullptr;
    }
    return std::make_unique<HeldFolder>(held_, place);
}

void Files::SetCurrentFolder(const std::string& path) {
    currentFolder_ = Whole(path);
    AddFolder(currentFolder_);
}

void Files::AddFolder(const std::string& path) {
    std::string folder = Whole(path);
    while (folders_.insert(folder).second) {
        folder = FolderOf(folder);
    }
}

void Files::Put(const std::string& path, const std::string& content) {
    AddFolder(FolderOf(Whole(path)));
    PutAnew(Whole(path), content);
}

void Files::SwapFolder(const std::string& path) {
    const std::string folder = Whole(path);
    std::erase_if(contents, [&](const auto& file) { return file.first.starts_with(folder + '/'); });
    ++held_->swaps[folder];
}

void Files::FailAt(int nth, const std::string& reason) {
    failures_[operations_ + nth] = reason;
}

void Files::FailBehind(int nth, const std::string& reason) {
    failuresBehind_[operations_ + nth] = reason;
}

}  // namespace tallyhut::sim
