#include "platform/wave_format.h"

#include <algorithm>
#include <array>

#include "platform/path_error.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::size_t kRiffBytes = 12;       // "RIFF", a length, "WAVE"
constexpr std::size_t kChunkHeadBytes = 8;   // a name, a length
constexpr std::size_t kPlainFormat = 16;     // bytes of a format that says nothing more
constexpr std::size_t kExtendedFormat = 26;  // bytes up to the coding that an extended format names
constexpr int kMostChunks = 1'000;           // a file of millions of empty ones holds nobody up

constexpr int kLowestRate = 1'000;
constexpr int kHighestRate = 384'000;
constexpr int kMostChannels = 8;

constexpr unsigned kExtended = 0xFFFE;

/// What an ADPCM block begins with, for each channel, and how many frames that stands for.
struct BlockHead {
    std::uint64_t bytes = 0;
    std::uint64_t frames = 0;
};

struct CodingRow {
    unsigned tag;
    int bits;
    WaveCoding coding;
    BlockHead block = {};  ///< of codings in blocks
};

constexpr std::array<CodingRow, 9> kCodings{{
    {1, 8, WaveCoding::Integer},
    {1, 16, WaveCoding::Integer},
    {1, 24, WaveCoding::Integer},
    {1, 32, WaveCoding::Integer},
    {3, 32, WaveCoding::Float},
    {6, 8, WaveCoding::Packed},
    {7, 8, WaveCoding::Packed},
    {0x02, 4, WaveCoding::Packed, {.bytes = 7, .frames = 2}},
    {0x11, 4, WaveCoding::Packed, {.bytes = 4, .frames = 1}},
}};

/// A number of so many bytes, low byte first.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i > 0; --i) {
        number = number << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
    }
    return number;
}

std::string Bytes(std::uint32_t number, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(number >> 8U * static_cast<unsigned>(i) & 0xFFU);
    }
    return bytes;
}

const CodingRow& CodingOf(unsigned tag, int bits) {
    const auto* const row =
        std::ranges::find_if(kCodings, [&](const CodingRow& each) { return each.tag == tag && each.bits == bits; });
    if (row == kCodings.end()) {
        throw ValueError{"Unknown coding of the wave file: " + std::to_string(tag) + " with " + std::to_string(bits) +
                         " bits"};
    }
    return *row;
}

/// What a format chunk says.
struct Described {
    WaveFormat format;
    BlockHead block;
    std::uint64_t blockBytes = 0;
};

Described ReadDescription(std::string_view chunk) {
    if (chunk.size() < kPlainFormat) {
        throw ValueError{"Damaged wave file"};
    }
    const int bits = static_cast<int>(Number(chunk, 14, 2));
    unsigned tag = Number(chunk, 0, 2);
    if (tag == kExtended && chunk.size() >= kExtendedFormat) {
        tag = Number(chunk, 24, 2);
    }
    const CodingRow& coding = CodingOf(tag, bits);
    const std::uint32_t rate = Number(chunk, 4, 4);
    const std::uint32_t channels = Number(chunk, 2, 2);
    if (rate < kLowestRate || rate > kHighestRate || channels < 1 || channels > kMostChannels) {
        throw ValueError{"Wave file of " + std::to_string(rate) + " Hz with " + std::to_string(channels) + " channels"};
    }
    const Described described{.format = {.coding = coding.coding,
                                         .rate = static_cast<int>(rate),
                                         .channels = static_cast<int>(channels),
                                         .bits = bits},
                              .block = coding.block,
                              .blockBytes = Number(chunk, 12, 2)};
    const bool isInBlocks = described.block.bytes > 0;
    if (isInBlocks ? described.blockBytes <= described.block.bytes * channels
                   : described.blockBytes != static_cast<std::uint64_t>(described.format.FrameBytes())) {
        throw ValueError{"Damaged wave file"};
    }
    return described;
}

/// Frames in so many bytes; those of a block that is not whole do not count.
std::uint64_t FramesIn(const Described& described, std::uint64_t bytes) {
    const auto channels = static_cast<std::uint64_t>(described.format.channels);
    if (described.block.bytes == 0) {
        return bytes / described.blockBytes;
    }
    const std::uint64_t codes = (described.blockBytes - described.block.bytes * channels) * 2;  // two a byte
    return bytes / described.blockBytes * (described.block.frames + codes / channels);
}

/// Throws ValueError for what no player takes.
WaveFormat FormatIn(const Files::Reader& file) {
    const std::uint64_t fileBytes = file.Length();
    const std::string riff = file.Part(0, kRiffBytes);
    if (riff.size() < kRiffBytes || !riff.starts_with("RIFF") || !riff.ends_with("WAVE")) {
        throw ValueError{"Not a wave file"};
    }
    Described described;
    std::uint64_t at = kRiffBytes;
    for (int chunks = 0; chunks < kMostChunks && at + kChunkHeadBytes <= fileBytes; ++chunks) {
        const std::string head = file.Part(at, kChunkHeadBytes);
        if (head.size() < kChunkHeadBytes) {  // cut since
            break;
        }
        const std::uint64_t bytes = Number(head, 4, 4);
        at += kChunkHeadBytes;
        if (head.starts_with("fmt ")) {
            described = ReadDescription(file.Part(at, std::min<std::uint64_t>(bytes, kExtendedFormat)));
        } else if (head.starts_with("data") && described.format.rate > 0) {
            const std::uint64_t left = fileBytes - at;
            described.format.dataAt = at;
            described.format.dataBytes = std::min(bytes, left);
            described.format.frames = FramesIn(described, described.format.dataBytes);
            return described.format;
        }
        at += bytes + bytes % 2;
    }
    throw ValueError{"Wave file without sound"};
}

}  // namespace

std::chrono::milliseconds WaveFormat::Length() const {
    constexpr std::uint64_t kMillisecondsASecond = 1'000;
    const auto whole = static_cast<std::uint64_t>(std::max(rate, 1));
    return std::chrono::milliseconds{(frames * kMillisecondsASecond + whole - 1) / whole};
}

WaveFormat ReadWaveFormat(const Files::Reader& file, const std::string& path) {
    try {
        return FormatIn(file);
    } catch (const ValueError& failure) {
        throw PathError(path, failure.what());
    }
}

std::string WaveFile(int rate, std::string_view samples) {
    constexpr std::uint32_t kSampleBytes = 2;
    constexpr std::uint32_t kBitsAByte = 8;
    const auto frames = static_cast<std::uint32_t>(rate);
    const auto bytes = static_cast<std::uint32_t>(samples.size());
    const std::string format = Bytes(1, 2) + Bytes(1, 2) + Bytes(frames, 4) + Bytes(frames * kSampleBytes, 4) +
                               Bytes(kSampleBytes, 2) + Bytes(kSampleBytes * kBitsAByte, 2);
    const std::string chunks = "WAVEfmt " + Bytes(kPlainFormat, 4) + format + "data" + Bytes(bytes, 4);
    return "RIFF" + Bytes(static_cast<std::uint32_t>(chunks.size()) + bytes, 4) + chunks + std::string{samples};
}

}  // namespace tallyhut
