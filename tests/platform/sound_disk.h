#pragma once

#include <string>

#include "platform/real/descriptor.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {

/// A sound card that is a pipe: what the desktop's sound plays comes out of it. At its own pace, or so fast as the
/// reader takes it. One at a time.
class SoundDisk {
public:
    enum class Pace { Real, Fast };

    explicit SoundDisk(Pace pace);

    /// Everything that was played and not taken yet.
    std::string Take();
    /// The cable is pulled: who plays sees that nobody hears.
    void Unplug() { heard_ = Descriptor{}; }

    const TemporaryFolder folder;
    const std::string path = folder.At("sound");

private:
    Descriptor heard_;
};

}  // namespace tallyhut
