#include "tests/fuzz/wave_inputs.h"

#include <string>

#include "platform/platform_error.h"
#include "platform/wave_format.h"

namespace tallyhut {
namespace {

struct BytesReader : Files::Reader {
    explicit BytesReader(std::string_view given) : bytes{given} {}

    std::uint64_t Length() const override { return bytes.size(); }
    std::string Part(std::uint64_t offset, std::size_t most) const override {
        return offset < bytes.size() ? std::string{bytes.substr(offset, most)} : "";
    }

    const std::string_view bytes;
};

}  // namespace

bool TakesWaveInput(std::string_view bytes) {
    try {
        const WaveFormat wave = ReadWaveFormat(BytesReader{bytes}, "x.wav");
        const bool isWithin = wave.dataAt <= bytes.size() && wave.dataBytes <= bytes.size() - wave.dataAt;
        const bool fits = wave.coding == WaveCoding::Packed ||
                          wave.frames * static_cast<std::uint64_t>(wave.FrameBytes()) <= wave.dataBytes;
        return isWithin && fits && wave.rate > 0 && wave.channels > 0 && wave.Length().count() >= 0;
    } catch (const PlatformError&) {
        return true;
    }
}

}  // namespace tallyhut
