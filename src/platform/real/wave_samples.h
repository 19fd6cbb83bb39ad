#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/files.h"

namespace tallyhut {

/// What a device has to be told of samples.
struct SampleFormat {
    int rate = 0;  ///< frames a second
    int channels = 0;
    std::uint16_t coding = 0;  ///< as SDL numbers them

    bool operator==(const SampleFormat&) const = default;
};

/// The samples of a wave file as a device takes them. Plain ones stay in the file, which may be hours long, and are
/// read as they are played; packed ones are unpacked as a whole.
struct WaveSamples {
    SampleFormat format;
    std::uint64_t bytes = 0;
    std::chrono::milliseconds length{0};
    /// The bytes from an offset on, fewer only where the file has been cut. Any thread may call it. Throws
    /// PlatformError.
    std::function<std::string(std::uint64_t at, std::size_t most)> read;
};

/// Throws PlatformError where the file cannot be read or is no wave file that can be played. The longest packed one is
/// 64 MB: an hour of A-law, two of ADPCM, at 16,000 Hz.
WaveSamples OpenWaveSamples(std::unique_ptr<Files::Reader> file, const std::string& path);

}  // namespace tallyhut
