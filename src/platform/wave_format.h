#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tallyhut {

/// How the samples of a wave file are written. Packed ones (A-law, mu-law, ADPCM) are no numbers before they are
/// unpacked.
enum class WaveCoding { Integer, Float, Packed };

/// Where and how the samples of a wave file stand.
struct WaveFormat {
    WaveCoding coding = WaveCoding::Integer;
    int rate = 0;      ///< frames a second
    int channels = 0;  ///< samples a frame
    int bits = 0;      ///< of a sample as it is written
    std::uint64_t dataAt = 0;
    std::uint64_t dataBytes = 0;  ///< that are in the file, whatever its header says
    std::uint64_t frames = 0;

    /// Bytes of a frame that is not packed.
    int FrameBytes() const { return channels * bits / 8; }
    /// The last millisecond counted whole.
    std::chrono::milliseconds Length() const;

    bool operator==(const WaveFormat&) const = default;
};

/// Reads what stands before the samples, and nothing of these. A file that ends before its samples do, or whose header
/// gives them no length (a recording that was killed), has those that are there.
///
/// Throws PlatformError, with the path and what is wrong, for a file that cannot be read, that is no wave file (RIFF
/// WAVE), or whose coding, rate or number of channels no player takes.
WaveFormat ReadWaveFormat(const Files::Reader& file, const std::string& path);

/// The whole file of samples of 16 bits, low byte first, in one channel.
std::string WaveFile(int rate, std::string_view samples);

}  // namespace tallyhut
