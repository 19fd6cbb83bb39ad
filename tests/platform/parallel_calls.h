#pragma once

#include <string>

namespace tallyhut {

/// Stands in for the system's calls of this process on parallel ports while it lives, so that an empty file does for a
/// device. One at a time; without one such calls fail, so that no test writes to hardware.
class ParallelCalls {
public:
    ParallelCalls();
    ParallelCalls(const ParallelCalls&) = delete;
    ParallelCalls& operator=(const ParallelCalls&) = delete;
    ParallelCalls(ParallelCalls&&) = delete;
    ParallelCalls& operator=(ParallelCalls&&) = delete;
    ~ParallelCalls();

    /// What was asked of ports since the last call: "claim, write 3, release", and "allow 890", "forbid 890" for what
    /// is asked without a driver.
    std::string Take();

    int claimFailure = 0;           ///< errno value with which claiming fails
    int writeFailure = 0;           ///< likewise writing
    bool mayWriteDirectly = false;  ///< whether the right to write without a driver is given

    std::string noted;
};

}  // namespace tallyhut
