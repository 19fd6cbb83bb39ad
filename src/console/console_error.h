#pragma once

#include <stdexcept>

namespace tallyhut {

/// A command that cannot be taken; what() is told to the driver, and nothing has changed.
struct ConsoleError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace tallyhut
