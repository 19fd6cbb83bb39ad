#include "platform/sim/files.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/path_error.h"

namespace tallyhut::sim {

namespace {

struct HeldFolder : Files::FolderLock {
    HeldFolder(std::shared_ptr<std::set<std::string>> held, std::string folder)
        : held_(std::move(held)), folder_(std::move(folder)) {
        held_->insert(folder_);
    }
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;
    ~HeldFolder() override { held_->erase(folder_); }

private:
    std::shared_ptr<std::set<std::string>> held_;
    std::string folder_;
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

void Files::CheckReadable(const std::string& path, const std::string& place) const {
    if (folders_.contains(place)) {
        throw PathError(path, EISDIR);
    }
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
    if (const int obstacle = Obstacle(place)) {
        throw PathError(path, obstacle);
    }
    if (readOnlyFolders.contains(FolderOf(place))) {
        throw PathError(path, EROFS);
    }
}

std::string Files::Read(const std::string& path) const {
    const std::string place = Whole(path);
    CheckReadable(path, place);
    return contents.at(place);
}

void Files::Append(const std::string& path, std::string_view record) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    if (folders_.contains(place)) {
        throw PathError(path, EISDIR);
    }
    std::string& content = contents[place];
    if (!content.empty() && !content.ends_with('\n')) {
        content += "\r\n";
    }
    content += record;
    appends.push_back({place, std::string(record)});
}

void Files::Replace(const std::string& path, std::string_view content) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    if (folders_.contains(place)) {
        throw PathError(path, EISDIR);
    }
    contents[place] = content;
}

void Files::Write(const std::string& path, std::string_view content) {
    const std::string place = Whole(path);
    if (failures_.contains(operations_ + 1) && Obstacle(place) == 0 && !folders_.contains(place)) {
        contents[place] = content.substr(0, content.size() / 2);
    }
    Replace(path, content);
}

void Files::Copy(const std::string& from, const std::string& to) {
    const std::string source = Whole(from);
    const std::string target = Whole(to);
    BeginChange(to, target);
    CheckReadable(from, source);
    if (folders_.contains(target)) {
        throw PathError(to, EISDIR);
    }
    if (source == target) {
        throw PathError(to, kCopyOntoItself);
    }
    contents[target] = contents.at(source);
}

bool Files::FileExists(const std::string& path) const {
    return contents.contains(Whole(path));
}

bool Files::FolderExists(const std::string& path) const {
    return folders_.contains(Whole(path));
}

bool Files::IsSameFile(const std::string& one, const std::string& other) const {
    return contents.contains(Whole(one)) && Whole(one) == Whole(other);
}

void Files::MakeFolder(const std::string& path) {
    const std::string place = Whole(path);
    BeginChange(path, place);
    if (folders_.contains(place) || contents.contains(place)) {
        throw PathError(path, EEXIST);
    }
    folders_.insert(place);
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

std::unique_ptr<Files::FolderLock> Files::Lock(const std::string& folder) {
    const std::string place = Whole(folder);
    if (const int obstacle = Obstacle(place + "/attempt")) {
        throw PathError(folder, obstacle);
    }
    if (lockedFolders.contains(place) || held_->contains(place)) {
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
    contents[Whole(path)] = content;
}

void Files::FailAt(int nth, const std::string& reason) {
    failures_[operations_ + nth] = reason;
}

}  // namespace tallyhut::sim
