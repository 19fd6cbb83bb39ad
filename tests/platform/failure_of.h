#pragma once

#include <string>

#include "platform/platform_error.h"

namespace tallyhut {

/// What the operation's failure says; empty when it succeeded.
template <class Operation>
std::string FailureOf(Operation operation) {
    try {
        operation();
        return "";
    } catch (const PlatformError& error) {
        return error.what();
    }
}

}  // namespace tallyhut
