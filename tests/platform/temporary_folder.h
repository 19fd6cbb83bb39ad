#pragma once

#include <filesystem>
#include <string>

namespace tallyhut {

/// A new folder that others may enter and read, removed with all that is in it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    std::string Path() const { return path_.string(); }
    /// The path of something in the folder.
    std::string At(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

}  // namespace tallyhut
