#include "platform/path_error.h"

#include <system_error>

namespace tallyhut {

PlatformError PathError(const std::string& path, const std::string& reason) {
    return {PlatformError{path + ": " + reason}};
}

PlatformError PathError(const std::string& path, int errorNumber) {
    return PathError(path, std::generic_category().message(errorNumber));
}

}  // namespace tallyhut
