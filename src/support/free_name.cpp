#include "support/free_name.h"

namespace tallyhut {

std::string FreeName(const Files& files, const std::string& stem, const std::string& suffix) {
    std::string path = stem + suffix;
    for (int number = 2; files.FileExists(path) || files.FolderExists(path); ++number) {
        path = stem;
        path.append("-").append(std::to_string(number)).append(suffix);
    }
    return path;
}

}  // namespace tallyhut
