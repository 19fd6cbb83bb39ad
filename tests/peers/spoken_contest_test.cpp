// What reaches the sound card of a contest by keyboard and ear, sample by sample, in real time.

#include "tests/console/spoken_contest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "tests/console/console_driver.h"
#include "tests/platform/sound_disk.h"
#include "tests/platform/wave_bytes.h"

namespace tallyhut {
namespace {

constexpr std::size_t kRecordingBytes = 6'616;  ///< 150 ms
constexpr int kPatience = 100;                  ///< looks of 50 ms

/// A contest's folder whose recordings are all different, and the sound card that they are heard on.
struct SpokenContest : testing::Test {
    SoundDisk card{SoundDisk::Pace::Real};
    ContestFolder folder;
    std::map<std::string, std::string> samples;

    SpokenContest() {
        constexpr std::uint32_t kApart = 0x25'000'000;  // so that no two begin alike
        std::uint32_t seed = 0;
        for (const std::string_view name : kRecordings) {
            samples[std::string{name}] = Pattern(kRecordingBytes, seed += kApart);
            folder.Write(std::string{name} + ".wav", WaveBytes({}, samples[std::string{name}]));
        }
    }

    /// What was played since the last look, without the silence around it.
    std::string Heard() {
        std::string heard = card.Take();
        std::erase(heard, '\0');
        return heard;
    }

    /// Takes the recordings off the front of what was heard, in their order; of one that is cut off, what is there.
    /// What is left is something else.
    std::string Unexplained(std::string heard, const std::vector<std::string>& names) const {
        for (const std::string& name : names) {
            const bool isCutOff = name.ends_with('-');
            const std::string& played = samples.at(name.substr(0, name.find('-')));
            const auto [differs, end] = std::ranges::mismatch(heard, played);
            const auto same = static_cast<std::size_t>(differs - heard.begin());
            if (!isCutOff && same < played.size()) {
                return "(not whole: " + name + ")" + heard;
            }
            heard.erase(0, same);
        }
        return heard;
    }
};

TEST_F(SpokenContest, ReachesTheSoundCardSampleBySample) {
    ConsoleDriver program{folder.Path(), {}, ConsoleDriver::Questions::Open};
    for (const SpokenStep& step : kSpokenContest) {
        program.Do(step.command.starts_with("wait ") ? "settle " + step.command.substr(5) : step.command);
        const std::size_t whole = static_cast<std::size_t>(std::ranges::count_if(
                                      step.heard, [](const std::string& name) { return !name.ends_with('-'); })) *
                                  kRecordingBytes;
        std::string heard = Heard();
        for (int looks = 0; looks < kPatience && heard.size() < whole; ++looks) {
            program.Do("settle 50");
            heard += Heard();
        }
        program.Do("settle 100");
        heard += Heard();
        EXPECT_EQ(Unexplained(heard, step.heard), "") << step.command << ", " << heard.size() << " bytes";
    }
    EXPECT_EQ(program.Get("$gContactCount"), "3");
}

}  // namespace
}  // namespace tallyhut
