#pragma once

#include <string>

#include "platform/platform_error.h"

namespace tallyhut {

/// Steps that do not hang together: one that the machine refuses holds up none of the others, and all that was refused
/// is told in the end.
class Attempts {
public:
    template <typename Step>
    void Try(const Step& step) {
        try {
            step();
        } catch (const PlatformError& failure) {
            Note(failure);
        }
    }
    void Note(const PlatformError& failure) {
        failures_ += (failures_.empty() ? "" : "\n") + std::string{failure.what()};
    }
    bool AnyFailed() const { return !failures_.empty(); }
    /// Throws PlatformError with a line each.
    void ThrowIfAnyFailed() const {
        if (AnyFailed()) {
            throw PlatformError{failures_};
        }
    }

private:
    std::string failures_;
};

}  // namespace tallyhut
