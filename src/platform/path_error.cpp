#include "platform/path_error.h"

#include <system_error>

namespace tallyhut {

std::string ReasonOf(int errorNumber) {
    return std::generic_category().message(errorNumber);
}

FileChangedError Changed(const std::string& path) {
    return FileChangedError{path + ": Another program has removed, replaced or changed the file"};
}

UnconfirmedError Unconfirmed(const std::string& path, const std::string& reason) {
    return UnconfirmedError{path + ": It was written, but the disk has not confirmed that it keeps it: " + reason};
}

PlatformError PathError(const std::string& path, const std::string& reason) {
    return {PlatformError{path + ": " + reason}};
}

PlatformError PathError(const std::string& path, int errorNumber) {
    return PathError(path, ReasonOf(errorNumber));
}

}  // namespace tallyhut
