#include "tests/peers/morse_listener.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <sstream>
#include <stdexcept>

#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

constexpr double kSamplesAMs = 8;
constexpr double kToneHertz = 600;
constexpr double kEdgeMs = 5;
constexpr double kSilence = 128;
constexpr double kLoudness = 100;
/// As long as the silence between words lasts at least, for the decoder.
constexpr double kPauseUnits = 20;

double UnitMs(double wpm) {
    return 1'200 / wpm;
}

/// A stretch of tone or silence, bytes of one sample each.
std::string Sound(double ms, bool tone) {
    const auto count = static_cast<std::size_t>(std::lround(ms * kSamplesAMs));
    std::string samples(count, static_cast<char>(kSilence));
    for (std::size_t at = 0; tone && at < count; ++at) {
        const double fromEdge = static_cast<double>(std::min(at, count - at)) / kSamplesAMs;
        const double loudness = kLoudness * std::min(1.0, fromEdge / kEdgeMs);
        const double angle = 2 * std::numbers::pi * kToneHertz * static_cast<double>(at) / (kSamplesAMs * 1'000);
        samples[at] = static_cast<char>(std::lround(kSilence + loudness * std::sin(angle)));
    }
    return samples;
}

/// Long pauses are cut short.
std::string SoundOf(const std::vector<KeyChange>& changes, double wpm) {
    const double pause = kPauseUnits * UnitMs(wpm);
    std::string sound = Sound(pause, false);
    for (std::size_t at = 0; at + 1 < changes.size(); ++at) {
        const double ms = changes[at + 1].atMs - changes[at].atMs;
        sound += Sound(changes[at].down ? ms : std::min(ms, pause), changes[at].down);
    }
    return sound + Sound(pause, false);
}

std::string WordsOf(const std::string& path) {
    std::ifstream file{path};
    std::string text;
    for (std::string word; file >> word;) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

}  // namespace

std::string HeardByDecoder(const std::vector<KeyChange>& changes, double wpm) {
    const TemporaryFolder folder;
    const std::string sound = folder.At("sound");
    std::ofstream{sound, std::ios::binary} << SoundOf(changes, wpm);
    std::ostringstream command;
    command << "bash -o pipefail -c 'sox -t raw -r 8000 -e unsigned -b 8 -c 1 " << sound
            << " -t raw -r 22050 -e signed -b 16 -c 1 - | multimon-ng -q -a MORSE_CW -d " << std::lround(UnitMs(wpm))
            << " -g " << std::lround(UnitMs(wpm)) << " -t raw - >" << folder.At("heard") << "'";
    // NOLINTNEXTLINE(bugprone-command-processor): the words are all ours
    if (std::system(command.str().c_str()) != 0) {
        throw std::runtime_error{"the decoder cannot be run: " + command.str()};
    }
    return WordsOf(folder.At("heard"));
}

}  // namespace tallyhut
