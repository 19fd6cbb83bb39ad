#pragma once

#include <string>

namespace tallyhut {

/// The folders of the program, without a slash at the end. Fixed once the program has started.
struct Directories {
    std::string WorkingDirectory;  ///< log, settings, reports: where the program was started
    std::string DataDirectory;     ///< the program's own folder of the user; holds BACKUP
    std::string SharedDirectory;   ///< what a family of programs has in common
};

/// The path of a file in the working directory.
inline std::string WorkingFile(const Directories& directories, const std::string& name) {
    return directories.WorkingDirectory + '/' + name;
}

/// A path that the operator has given: a relative one begins in the working directory. Empty stays empty.
inline std::string WholePath(const Directories& directories, const std::string& path) {
    return path.empty() || path.starts_with('/') ? path : WorkingFile(directories, path);
}

}  // namespace tallyhut
