#include "platform/real/wave_samples.h"

#include <SDL_audio.h>
#include <SDL_error.h>
#include <SDL_rwops.h>

#include <algorithm>
#include <utility>

#include "platform/path_error.h"
#include "platform/wave_format.h"

namespace tallyhut {
namespace {

constexpr std::uint64_t kMostPackedBytes = std::uint64_t{64} << 20U;
constexpr std::size_t kPackedTriple = 3;  // bytes of a sample of 24 bits, which no device takes
constexpr std::size_t kWidened = 4;

SDL_AudioFormat CodingOf(const WaveFormat& wave) {
    if (wave.coding == WaveCoding::Float) {
        return AUDIO_F32LSB;
    }
    return wave.bits == 8 ? AUDIO_U8 : wave.bits == 16 ? AUDIO_S16LSB : AUDIO_S32LSB;
}

/// Samples of 24 bits as such of 32 bits.
std::string Widen(const std::string& triples) {
    std::string wide;
    wide.reserve(triples.size() / kPackedTriple * kWidened);
    for (std::size_t at = 0; at + kPackedTriple <= triples.size(); at += kPackedTriple) {
        wide += '\0';
        wide.append(triples, at, kPackedTriple);
    }
    return wide;
}

WaveSamples Plain(std::unique_ptr<Files::Reader> file, const WaveFormat& wave) {
    const bool widens = wave.bits == 24;
    const std::uint64_t stored = wave.frames * static_cast<std::uint64_t>(wave.FrameBytes());
    WaveSamples samples{.format = {.rate = wave.rate, .channels = wave.channels, .coding = CodingOf(wave)},
                        .bytes = widens ? stored / kPackedTriple * kWidened : stored,
                        .length = wave.Length(),
                        .read = {}};
    const std::shared_ptr<Files::Reader> shared = std::move(file);
    if (widens) {
        samples.read = [shared, start = wave.dataAt](std::uint64_t at, std::size_t most) {
            return Widen(shared->Part(start + at / kWidened * kPackedTriple, most / kWidened * kPackedTriple));
        };
    } else {
        samples.read = [shared, start = wave.dataAt](std::uint64_t at, std::size_t most) {
            return shared->Part(start + at, most);
        };
    }
    return samples;
}

WaveSamples Unpack(const Files::Reader& file, const std::string& path) {
    if (file.Length() > kMostPackedBytes) {
        throw PathError(path, "Packed wave file of more than 64 MB");
    }
    const std::string content = file.Part(0, file.Length());
    SDL_AudioSpec spec{};
    Uint8* buffer = nullptr;
    Uint32 bytes = 0;
    SDL_RWops* const packed = SDL_RWFromConstMem(content.data(), static_cast<int>(content.size()));
    if (packed == nullptr || SDL_LoadWAV_RW(packed, 1, &spec, &buffer, &bytes) == nullptr) {
        throw PathError(path, SDL_GetError());
    }
    const std::shared_ptr<Uint8> unpacked{buffer, SDL_FreeWAV};
    const auto frameBytes = static_cast<std::uint64_t>(spec.channels * SDL_AUDIO_BITSIZE(spec.format) / 8);
    const WaveFormat wave{.rate = spec.freq, .frames = bytes / frameBytes};
    return {.format = {.rate = spec.freq, .channels = spec.channels, .coding = spec.format},
            .bytes = bytes,
            .length = wave.Length(),
            .read = [unpacked, bytes](std::uint64_t at, std::size_t most) {
                const std::size_t left = at < bytes ? bytes - static_cast<std::size_t>(at) : 0;
                return std::string(reinterpret_cast<const char*>(unpacked.get()) + at, std::min(most, left));
            }};
}

}  // namespace

WaveSamples OpenWaveSamples(std::unique_ptr<Files::Reader> file, const std::string& path) {
    const WaveFormat wave = ReadWaveFormat(*file, path);
    return wave.coding == WaveCoding::Packed ? Unpack(*file, path) : Plain(std::move(file), wave);
}

}  // namespace tallyhut
