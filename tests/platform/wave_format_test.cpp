#include "platform/wave_format.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "platform/sim/files.h"
#include "tests/fuzz/wave_inputs.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/wave_bytes.h"

namespace tallyhut {
namespace {

WaveFormat Read(const std::string& content) {
    sim::Files files;
    files.Put("/contest/cq.wav", content);
    return ReadWaveFormat(*files.OpenToRead("/contest/cq.wav"), "/contest/cq.wav");
}

std::string RefusalOf(const std::string& content) {
    return FailureOf([&] { Read(content); });
}

TEST(WaveFormat, EveryCodingSaysItsFrames) {
    struct Case {
        WaveHead head;
        std::size_t bytes;
        WaveCoding coding;
        std::uint64_t frames;
    };
    const std::vector<Case> cases{
        {{.coding = 1, .channels = 1, .rate = 11'025, .blockBytes = 1, .bits = 8}, 100, WaveCoding::Integer, 100},
        {{.coding = 1, .channels = 1, .rate = 22'050, .blockBytes = 2, .bits = 16}, 100, WaveCoding::Integer, 50},
        {{.coding = 1, .channels = 2, .rate = 44'100, .blockBytes = 6, .bits = 24}, 100, WaveCoding::Integer, 16},
        {{.coding = 1, .channels = 2, .rate = 48'000, .blockBytes = 8, .bits = 32}, 96, WaveCoding::Integer, 12},
        {{.coding = 3, .channels = 1, .rate = 48'000, .blockBytes = 4, .bits = 32}, 100, WaveCoding::Float, 25},
        {{.coding = 6, .channels = 1, .rate = 8'000, .blockBytes = 1, .bits = 8}, 100, WaveCoding::Packed, 100},
        {{.coding = 7, .channels = 2, .rate = 8'000, .blockBytes = 2, .bits = 8}, 100, WaveCoding::Packed, 50},
        {{.coding = 2, .channels = 1, .rate = 22'050, .blockBytes = 512, .bits = 4}, 1'024, WaveCoding::Packed, 2'024},
        {{.coding = 17, .channels = 2, .rate = 44'100, .blockBytes = 2'048, .bits = 4},
         2'048,
         WaveCoding::Packed,
         2'041},
    };
    for (const auto& [head, bytes, coding, frames] : cases) {
        const WaveFormat format = Read(WaveBytes(head, std::string(bytes, 'x')));
        EXPECT_EQ(format.coding, coding) << head.coding;
        EXPECT_EQ(format.frames, frames) << head.coding << ' ' << head.bits;
        EXPECT_EQ(format.rate, static_cast<int>(head.rate));
        EXPECT_EQ(format.channels, static_cast<int>(head.channels));
        EXPECT_EQ(format.dataAt, 44U);
        EXPECT_EQ(format.dataBytes, bytes);
    }
}

TEST(WaveFormat, LengthCountsTheLastMillisecondWhole) {
    const WaveHead head{.rate = 1'000};
    EXPECT_EQ(Read(WaveBytes(head, "")).Length().count(), 0);
    EXPECT_EQ(Read(WaveBytes(head, std::string(2'000, 'x'))).Length().count(), 1'000);
    EXPECT_EQ(Read(WaveBytes({}, std::string(44'102, 'x'))).Length().count(), 1'001);
}

TEST(WaveFormat, OtherChunksOfAnyLengthMayStandBeforeTheSamples) {
    const WaveFormat format =
        Read(Riff(Chunk("LIST", "odd") + FormatChunk({}) + Chunk("fact", "1234") + Chunk("data", "samples.")));
    EXPECT_EQ(format.frames, 4U);
    EXPECT_EQ(format.dataAt, 12U + 12 + 24 + 12 + 8);
}

TEST(WaveFormat, ExtendedFormatNamesItsCodingFurtherBehind) {
    const std::string guid = LowFirst(3, 2) + std::string("\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71", 14);
    const std::string extended = LowFirst(0xFFFE, 2) + LowFirst(1, 2) + LowFirst(48'000, 4) + LowFirst(192'000, 4) +
                                 LowFirst(4, 2) + LowFirst(32, 2) + LowFirst(22, 2) + LowFirst(32, 2) + LowFirst(4, 4) +
                                 guid;
    EXPECT_EQ(Read(Riff(Chunk("fmt ", extended) + Chunk("data", "12345678"))).coding, WaveCoding::Float);
}

TEST(WaveFormat, RecordingThatWasKilledHasTheSamplesThatAreThere) {
    for (const std::uint64_t said : {0x7FFF'FFFFU, 0xFFFF'FFFFU, 9U}) {
        const std::string content = Riff(FormatChunk({}) + "data" + LowFirst(said, 4) + "samples.");
        EXPECT_EQ(Read(content).frames, 4U) << said;
    }
}

TEST(WaveFormat, SamplesMayBeNone) {
    EXPECT_EQ(Read(WaveBytes({}, "")).frames, 0U);
}

TEST(WaveFormat, WhatNoPlayerTakesIsRefusedWithTheReason) {
    const std::string path = "/contest/cq.wav: ";
    const std::string noWave = path + "Not a wave file";
    const std::string noSound = path + "Wave file without sound";
    const std::string damaged = path + "Damaged wave file";
    struct Case {
        std::string content;
        std::string told;
    };
    const std::vector<Case> cases{
        {"", noWave},
        {"RIFF", noWave},
        {"MZ" + std::string(100, '\0'), noWave},
        {"RIFX" + WaveBytes({}, "samples.").substr(4), noWave},
        {"RIFF" + LowFirst(40, 4) + "AVI " + FormatChunk({}), noWave},
        {Riff(""), noSound},
        {Riff(FormatChunk({})), noSound},
        {Riff(Chunk("data", "samples.")), noSound},
        {Riff(Chunk("LIST", "") + "data"), noSound},
        {Riff(FormatChunk({}) + "LIST" + LowFirst(0xFFFF'FFFF, 4)), noSound},
        {Riff(Chunk("fmt ", "short")), damaged},
        {WaveBytes({.blockBytes = 0}, "samples."), damaged},
        {WaveBytes({.channels = 2, .blockBytes = 2}, "samples."), damaged},
        {WaveBytes({.coding = 17, .blockBytes = 4, .bits = 4}, "samples."), damaged},
        {WaveBytes({.coding = 85}, "mp3"), path + "Unknown coding of the wave file: 85 with 16 bits"},
        {WaveBytes({.bits = 12}, "samples."), path + "Unknown coding of the wave file: 1 with 12 bits"},
        {WaveBytes({.coding = 0xFFFE}, "samples."), path + "Unknown coding of the wave file: 65534 with 16 bits"},
        {WaveBytes({.channels = 0, .blockBytes = 0}, ""), path + "Wave file of 22050 Hz with 0 channels"},
        {WaveBytes({.channels = 9, .blockBytes = 18}, ""), path + "Wave file of 22050 Hz with 9 channels"},
        {WaveBytes({.rate = 999}, ""), path + "Wave file of 999 Hz with 1 channels"},
        {WaveBytes({.rate = 4'000'000'000}, ""), path + "Wave file of 4000000000 Hz with 1 channels"},
    };
    for (const auto& [content, told] : cases) {
        EXPECT_EQ(RefusalOf(content), told);
    }
}

TEST(WaveFormat, MillionsOfEmptyChunksHoldNobodyUp) {
    std::string chunks;
    for (int i = 0; i < 1'000'000; ++i) {
        chunks += std::string{"junk\0\0\0\0", 8};
    }
    EXPECT_EQ(RefusalOf(Riff(chunks + FormatChunk({}) + Chunk("data", "samples."))),
              "/contest/cq.wav: Wave file without sound");
}

TEST(WaveFormat, WrittenFileIsReadAsItWasWritten) {
    const std::string samples = Pattern(1'000, 1);
    const std::string file = WaveFile(44'100, samples);
    EXPECT_EQ(file, WaveBytes({.rate = 44'100}, samples));
    EXPECT_EQ(Read(file).frames, 500U);
}

TEST(WaveFormat, DamagedFilesSayWhatIsInThemOrAreRefused) {
    constexpr int kRounds = 20'000;
    std::mt19937 random{4};
    const std::vector<std::string> whole{WaveBytes({}, Pattern(64, 1)),
                                         WaveBytes({.coding = 17, .blockBytes = 36, .bits = 4}, Pattern(72, 2)),
                                         Riff(Chunk("LIST", "odd") + FormatChunk({}) + Chunk("data", Pattern(8, 3)))};
    for (int round = 0; round < kRounds; ++round) {
        std::string bytes = whole[random() % whole.size()];
        for (std::uint32_t changes = random() % 4; changes > 0; --changes) {
            bytes[random() % bytes.size()] = static_cast<char>(random());
        }
        bytes.resize(bytes.size() - random() % 4 * (random() % 16));
        ASSERT_TRUE(TakesWaveInput(bytes)) << round;
    }
}

}  // namespace
}  // namespace tallyhut
