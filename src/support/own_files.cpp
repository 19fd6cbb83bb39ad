#include "support/own_files.h"

namespace tallyhut {

void RefuseOwnFile(const Files& files, const Directories& directories, const std::string& path) {
    for (const char* name : {"Log.txt", "nspref.txt", "nsonoff.txt", "Sections.txt", "ContactIDs.txt"}) {
        if (files.IsSameFile(path, WorkingFile(directories, name))) {
            throw PlatformError{path + ": This is the contest's own " + name + ". Choose another name."};
        }
    }
}

}  // namespace tallyhut
