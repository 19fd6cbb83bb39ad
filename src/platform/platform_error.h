#pragma once

#include <stdexcept>
#include <string>

namespace tallyhut {

/// An operation of the machine that failed. what() is the system's own description, with the place it happened at,
/// ready to be shown to the operator.
struct PlatformError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The end of the program on its way up the stack. It is no std::exception, so that no handler of failures takes it;
/// only the host, which owns the program, does.
struct ProgramEnd {
    int status = 0;  ///< exit status of the process
};

}  // namespace tallyhut
