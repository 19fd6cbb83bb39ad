#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// A number of so many bytes, low byte first.
inline std::string LowFirst(std::uint64_t number, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(number >> (8U * static_cast<unsigned>(i)) & 0xFFU);
    }
    return text;
}

/// A part of a wave file, with the length that it has or is said to have.
inline std::string Chunk(std::string_view name, std::string_view content) {
    return std::string{name} + LowFirst(content.size(), 4) + std::string{content} +
           std::string(content.size() % 2, '\0');
}

/// What a wave file says of its samples.
struct WaveHead {
    unsigned coding = 1;
    unsigned channels = 1;
    unsigned rate = 22'050;
    unsigned blockBytes = 2;
    unsigned bits = 16;
};

inline std::string FormatChunk(const WaveHead& head) {
    return Chunk("fmt ", LowFirst(head.coding, 2) + LowFirst(head.channels, 2) + LowFirst(head.rate, 4) +
                             LowFirst(head.rate * head.blockBytes, 4) + LowFirst(head.blockBytes, 2) +
                             LowFirst(head.bits, 2));
}

inline std::string Riff(std::string_view chunks) {
    return "RIFF" + LowFirst(chunks.size() + 4, 4) + "WAVE" + std::string{chunks};
}

inline std::string WaveBytes(const WaveHead& head, std::string_view samples) {
    return Riff(FormatChunk(head) + Chunk("data", samples));
}

/// Bytes that no other seed gives, and no silence among them.
inline std::string Pattern(std::size_t bytes, std::uint32_t seed) {
    std::string pattern(bytes, '\0');
    for (char& byte : pattern) {
        seed = seed * 1'664'525 + 1'013'904'223;
        byte = static_cast<char>(seed >> 24U | 1U);
    }
    return pattern;
}

}  // namespace tallyhut
