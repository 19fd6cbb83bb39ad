#pragma once

#include <optional>

namespace tallyhut {

/// What the system grants a program that must be on time, without asking anybody: timers that are not put together with
/// others, and real-time scheduling where the user's limits allow it (RLIMIT_RTPRIO). Both belong to the calling
/// thread, and go back to what they were. What is not granted is done without.
class Punctuality {
public:
    Punctuality() = default;
    Punctuality(const Punctuality&) = delete;
    Punctuality& operator=(const Punctuality&) = delete;
    Punctuality(Punctuality&&) = delete;
    Punctuality& operator=(Punctuality&&) = delete;
    ~Punctuality() { End(); }

    /// Does nothing when it has begun.
    void Begin();
    /// Does nothing when it has not begun.
    void End();
    /// Gives back the real-time scheduling alone.
    void LeaveRealTime();
    bool IsRealTime() const { return formerPolicy_.has_value(); }

private:
    std::optional<unsigned long> formerSlack_;  ///< nanoseconds; a value while it has begun
    std::optional<int> formerPolicy_;           ///< a value while real-time scheduling is on by this
};

}  // namespace tallyhut
