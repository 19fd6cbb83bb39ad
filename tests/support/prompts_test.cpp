// The recordings that come with the program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "platform/real/posix_files.h"
#include "platform/wave_format.h"

namespace tallyhut {
namespace {

constexpr int kFullScale = 32'768;

struct PromptRecording : testing::TestWithParam<const char*> {
    const std::string path = TALLYHUT_DATA_FOLDER + std::string{"/prompts/"} + GetParam() + ".wav";
    const PosixFiles files;
    const std::unique_ptr<Files::Reader> file = files.OpenToRead(path);
    const WaveFormat wave = ReadWaveFormat(*file, path);
    const std::string samples = file->Part(wave.dataAt, wave.dataBytes);

    /// Of full scale.
    double Sample(std::size_t frame) const {
        const auto low = static_cast<unsigned char>(samples[2 * frame]);
        const auto high = static_cast<unsigned char>(samples[2 * frame + 1]);
        return static_cast<double>(static_cast<std::int16_t>(low | high << 8)) / kFullScale;
    }
    double Peak(std::size_t from, std::size_t to) const {
        double peak = 0;
        for (std::size_t frame = from; frame < to; ++frame) {
            peak = std::max(peak, std::abs(Sample(frame)));
        }
        return peak;
    }
};

INSTANTIATE_TEST_SUITE_P(Each, PromptRecording,
                         testing::Values("Call", "Number", "Prec", "Check", "Section", "Dupe", "Needspot", "NavEn",
                                         "NavDis"),
                         [](const auto& prompt) { return prompt.param; });

TEST_P(PromptRecording, HasTheFormatOfAllAndIsShort) {
    EXPECT_EQ(wave.coding, WaveCoding::Integer);
    EXPECT_EQ(wave.rate, 22'050);
    EXPECT_EQ(wave.channels, 1);
    EXPECT_EQ(wave.bits, 16);
    EXPECT_LT(wave.Length().count(), 600);
    EXPECT_GT(wave.Length().count(), 250);
}

TEST_P(PromptRecording, IsAsLoudAsTheOthersAndNowhereCutOff) {
    double squares = 0;
    for (std::size_t frame = 0; frame < wave.frames; ++frame) {
        squares += Sample(frame) * Sample(frame);
    }
    const double level = 10 * std::log10(squares / static_cast<double>(wave.frames));
    EXPECT_NEAR(level, -19.2, 0.3);
    EXPECT_LT(Peak(0, wave.frames), 0.8);
}

TEST_P(PromptRecording, BeginsAndEndsWithItsWordAndWithoutAClick) {
    constexpr std::size_t kFortyMilliseconds = 22'050 / 25;
    constexpr double kAudible = 0.01;
    EXPECT_GT(Peak(0, kFortyMilliseconds), kAudible);
    EXPECT_GT(Peak(wave.frames - kFortyMilliseconds, wave.frames), kAudible);
    EXPECT_LT(std::abs(Sample(0)), kAudible);
    EXPECT_LT(std::abs(Sample(wave.frames - 1)), kAudible);
}

}  // namespace
}  // namespace tallyhut
