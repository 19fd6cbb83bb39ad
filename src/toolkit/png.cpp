#include "toolkit/png.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tallyhut {
namespace {

constexpr std::size_t kBytesAPixel = 3;

Colour OnLightDesktop(Colour colour) {
    switch (colour) {
        case kWindowGround:
            return FromRgb(255, 255, 255);
        case kButtonFace:
            return FromRgb(240, 240, 240);
        case kWindowText:
        case kButtonText:
            return 0;
        default:
            return colour;
    }
}

std::string BigEndian(std::uint32_t number) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0}) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
    return bytes;
}

std::uint32_t Crc32(const std::string& bytes) {
    static constexpr auto kTable = [] {
        std::array<std::uint32_t, 256> table{};
        for (std::uint32_t n = 0; n < table.size(); ++n) {
            std::uint32_t value = n;
            for (int bit = 0; bit < 8; ++bit) {
                value = (value & 1) != 0 ? 0xEDB88320U ^ (value >> 1) : value >> 1;
            }
            table.at(n) = value;
        }
        return table;
    }();
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc = kTable.at((crc ^ static_cast<unsigned char>(byte)) & 0xFFU) ^ (crc >> 8);
    }
    return ~crc;
}

std::uint32_t Adler32(const std::string& bytes) {
    constexpr std::uint32_t kPrime = 65521;
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<unsigned char>(byte)) % kPrime;
        high = (high + low) % kPrime;
    }
    return high << 16 | low;
}

std::string Chunk(const std::string& type, const std::string& data) {
    return BigEndian(static_cast<std::uint32_t>(data.size())) + type + data + BigEndian(Crc32(type + data));
}

/// Each line as the difference from the one above it, so that what goes on downwards is a run of zeros.
std::string FilteredLines(const RasterImage& image) {
    constexpr char kUp = 2;
    const auto width = static_cast<std::size_t>(image.Width());
    std::string above(width * kBytesAPixel, '\0');
    std::string lines;
    lines.reserve((above.size() + 1) * static_cast<std::size_t>(image.Height()));
    for (int y = 0; y < image.Height(); ++y) {
        std::string line;
        line.reserve(above.size());
        for (int x = 0; x < image.Width(); ++x) {
            const Colour colour = OnLightDesktop(image.At(x, y));
            for (const int part : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
                line += static_cast<char>(static_cast<unsigned char>(part));
            }
        }
        lines += kUp;
        for (std::size_t i = 0; i < line.size(); ++i) {
            lines += static_cast<char>(static_cast<unsigned char>(line[i]) - static_cast<unsigned char>(above[i]));
        }
        above = std::move(line);
    }
    return lines;
}

/// Bits of a deflated stream, the lowest of a byte first.
struct BitWriter {
    std::string bytes;
    std::uint32_t waiting = 0;
    int count = 0;

    void Add(std::uint32_t bits, int length) {
        waiting |= bits << count;
        for (count += length; count >= 8; count -= 8) {
            bytes += static_cast<char>(static_cast<unsigned char>(waiting));
            waiting >>= 8;
        }
    }
    /// A Huffman code, whose highest bit comes first.
    void AddCode(std::uint32_t code, int length) {
        for (int bit = length - 1; bit >= 0; --bit) {
            Add((code >> bit) & 1, 1);
        }
    }
    void Flush() {
        if (count > 0) {
            Add(0, 8 - count);
        }
    }
};

/// A literal, or the end or a length of a copy, by the fixed codes (RFC 1951, 3.2.6).
void AddSymbol(BitWriter& out, std::uint32_t symbol) {
    if (symbol < 144) {
        out.AddCode(0x30 + symbol, 8);
    } else if (symbol < 256) {
        out.AddCode(0x190 + symbol - 144, 9);
    } else if (symbol < 280) {
        out.AddCode(symbol - 256, 7);
    } else {
        out.AddCode(0xC0 + symbol - 280, 8);
    }
}

struct CopyLength {
    std::uint32_t symbol;
    std::size_t least;
    int extraBits;
};

/// The longest first (RFC 1951, 3.2.5).
constexpr std::array<CopyLength, 29> kCopyLengths{{
    {285, 258, 0}, {284, 227, 5}, {283, 195, 5}, {282, 163, 5}, {281, 131, 5}, {280, 115, 4},
    {279, 99, 4},  {278, 83, 4},  {277, 67, 4},  {276, 59, 3},  {275, 51, 3},  {274, 43, 3},
    {273, 35, 3},  {272, 31, 2},  {271, 27, 2},  {270, 23, 2},  {269, 19, 2},  {268, 17, 1},
    {267, 15, 1},  {266, 13, 1},  {265, 11, 1},  {264, 10, 0},  {263, 9, 0},   {262, 8, 0},
    {261, 7, 0},   {260, 6, 0},   {259, 5, 0},   {258, 4, 0},   {257, 3, 0},
}};
constexpr std::size_t kShortestCopy = kCopyLengths.back().least;

/// The last byte again, as often as one copy can, at most `wanted` times; returns how often.
std::size_t AddCopy(BitWriter& out, std::size_t wanted) {
    constexpr std::uint32_t kDistanceOne = 0;
    const auto* const row =
        std::ranges::find_if(kCopyLengths, [wanted](const CopyLength& copy) { return copy.least <= wanted; });
    const std::size_t most = row->least + (std::size_t{1} << row->extraBits) - 1;
    const std::size_t length = std::min(wanted, most);
    AddSymbol(out, row->symbol);
    out.Add(static_cast<std::uint32_t>(length - row->least), row->extraBits);
    out.AddCode(kDistanceOne, 5);
    return length;
}

std::string Deflated(const std::string& bytes) {
    constexpr std::uint32_t kLastBlockOfFixedCodes = 0b011;
    constexpr std::uint32_t kEnd = 256;
    BitWriter out;
    out.Add(kLastBlockOfFixedCodes, 3);
    for (std::size_t i = 0; i < bytes.size();) {
        AddSymbol(out, static_cast<unsigned char>(bytes[i]));
        const std::size_t differs = std::min(bytes.find_first_not_of(bytes[i], i), bytes.size());
        for (++i; differs - i >= kShortestCopy;) {
            i += AddCopy(out, differs - i);
        }
    }
    AddSymbol(out, kEnd);
    out.Flush();
    return "\x78\x01" + out.bytes + BigEndian(Adler32(bytes));
}

}  // namespace

std::string PngOf(const RasterImage& image) {
    const std::string header = BigEndian(static_cast<std::uint32_t>(image.Width())) +
                               BigEndian(static_cast<std::uint32_t>(image.Height())) + std::string{"\x08\x02\0\0\0", 5};
    return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", header) + Chunk("IDAT", Deflated(FilteredLines(image))) +
           Chunk("IEND", "");
}

}  // namespace tallyhut
