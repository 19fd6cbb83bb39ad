#pragma once

#include <atomic>
#include <cstdint>

namespace tallyhut {

/// What the shim of fault_shim.cpp is told and tells, in memory that a test and the program under test share.
struct FaultState {
    static constexpr std::size_t kLongest = 256;

    char folder[kLongest] = {};  ///< calls for files in it and below are counted, and no other
    std::uint64_t failAt = 0;    ///< the call that fails, counted from 1; 0 for none
    bool forGood = false;        ///< every call behind it fails too
    int error = 0;               ///< errno of the failure

    std::atomic<std::uint64_t> calls = 0;  ///< counted so far
    std::atomic<bool> hasFailed = false;
    char call[kLongest] = {};  ///< the name of the one that failed
    char path[kLongest] = {};  ///< and its file
};

/// The name of the environment variable with the path of a file that holds a FaultState.
inline constexpr const char* kFaultVariable = "TALLYHUT_FAULTS";

/// For a test that holds the shim itself. Null counts no more calls.
void UseFaults(FaultState* state);

}  // namespace tallyhut
