#include "tests/platform/temporary_folder.h"

#include <cstdlib>
#include <system_error>

namespace tallyhut {

TemporaryFolder::TemporaryFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "tallyhut.XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    path_ = path;
    std::filesystem::permissions(path_, std::filesystem::perms{0755});
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;  // a destructor does not throw, and the system cleans its temporary folder too
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace tallyhut
