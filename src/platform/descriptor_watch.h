#pragma once

namespace tallyhut {

/// A descriptor that a pump looks at for as long as this lives, which is no longer than the pump and than the
/// descriptor is open. When there is something to read, the pump tells it once and looks no more until Rearm, so that
/// what nobody reads yet keeps no loop awake.
///
/// The end of what comes, a failure and a hang-up are something to read too: the read tells which.
struct DescriptorWatch {
    virtual ~DescriptorWatch() = default;

    /// Looks again. Does nothing where it looks already.
    virtual void Rearm() = 0;
};

}  // namespace tallyhut
