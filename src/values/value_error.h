#pragma once

#include <stdexcept>

namespace tallyhut {

/// A conversion that failed. The message says what could not be converted and why.
struct ValueError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace tallyhut
