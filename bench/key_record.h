#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace tallyhut {

/// What was done to a control line, and when, as the shim has seen it.
struct KeyRecord {
    std::int64_t nanoseconds = 0;  ///< on the clock that only moves forward
    std::int32_t lines = 0;        ///< TIOCM_DTR or TIOCM_RTS or both
    std::int32_t on = 0;           ///< 1 or 0
};

/// The file that the shim writes, mapped into memory so that a record costs the program nothing it would feel.
struct KeyLog {
    static constexpr std::size_t kMost = 1'000'000;

    std::atomic<std::uint64_t> count = 0;
    std::array<KeyRecord, kMost> records = {};
};

}  // namespace tallyhut
