#include "platform/real/sdl_recorder.h"

#include <algorithm>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/platform_error.h"
#include "platform/wave_format.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

/// How long the program waits for an input to be opened and to be closed.
constexpr auto kPatience = 1s;
/// An input that has brought nothing for so long hangs. One that was asleep may take a second or two to wake.
constexpr auto kLongestPause = 5s;
/// How often an unplugged input is looked for.
constexpr auto kLook = 100ms;

constexpr std::size_t kSampleBytes = 2;
constexpr int kLargestSample = 32'768;
constexpr std::size_t kMostBytes =
    std::chrono::seconds{WaveRecorder::kLongest}.count() * WaveRecorder::kRate * kSampleBytes;

/// How far one of the samples, low byte first, is from silence.
int PeakOf(const Uint8* samples, std::size_t bytes) {
    int peak = 0;
    for (std::size_t at = 0; at + 1 < bytes; at += kSampleBytes) {
        const auto sample = static_cast<std::int16_t>(samples[at] | samples[at + 1] << 8);
        peak = std::max(peak, std::abs(static_cast<int>(sample)));
    }
    return peak;
}

}  // namespace

/// What the program's thread, the recording's and the device's have in common.
struct SdlRecorder::Recording {
    std::mutex lock;
    std::condition_variable changed;
    bool isOpen = false;
    bool isEnding = false;                  ///< the program wants no more
    std::optional<std::string> ended = {};  ///< by itself: why
    std::string samples = {};
    int peak = 0;
    SteadyClock::time_point lastBrought = {};

    bool TakesMore() const { return isOpen && !isEnding && !ended && samples.size() < kMostBytes; }

    /// The device's thread brings samples.
    void Take(const Uint8* brought, std::size_t bytes);
    /// The recording's own thread.
    void Run(SdlAudio& audio);
};

void SdlRecorder::Recording::Take(const Uint8* brought, std::size_t bytes) {
    const std::lock_guard guard{lock};
    lastBrought = SteadyClock::now();
    if (TakesMore()) {
        bytes = std::min(bytes, kMostBytes - samples.size());
        samples.append(reinterpret_cast<const char*>(brought), bytes);
        peak = std::max(peak, PeakOf(brought, bytes));
    }
}

void SdlRecorder::Recording::Run(SdlAudio& audio) {
    std::string reason = "The sound input is gone";
    try {
        const SdlAudio::Connection connection{audio};
        const auto device = audio.Open(true, {.rate = kRate, .channels = 1, .coding = AUDIO_S16LSB},
                                       [this](const Uint8* brought, std::size_t bytes) { Take(brought, bytes); });
        std::unique_lock guard{lock};
        isOpen = true;
        lastBrought = SteadyClock::now();
        changed.notify_all();
        while (TakesMore() && device->IsThere()) {
            changed.wait_for(guard, kLook);
        }
        guard.unlock();
    } catch (const PlatformError& failure) {
        reason = failure.what();
    }
    const std::lock_guard guard{lock};
    ended = reason;
    changed.notify_all();
}

SdlRecorder::SdlRecorder(Files& files, std::shared_ptr<SdlAudio> audio) : files_{files}, audio_{std::move(audio)} {}

SdlRecorder::~SdlRecorder() {
    End();
}

/// Wants no more of the recording, and waits for the device to be let go of, if that takes no longer than it may.
void SdlRecorder::End() {
    if (recording_ != nullptr) {
        std::unique_lock guard{recording_->lock};
        recording_->isEnding = true;
        recording_->changed.notify_all();
        recording_->changed.wait_for(guard, kPatience, [this] { return recording_->ended.has_value(); });
    }
}

void SdlRecorder::Start(const std::string& path) {
    End();
    recording_.reset();
    const auto begun = std::make_shared<Recording>();
    try {
        std::thread{[begun, audio = audio_] { begun->Run(*audio); }}.detach();
    } catch (const std::system_error& failure) {
        throw PlatformError{failure.code().message()};
    }
    std::unique_lock guard{begun->lock};
    if (!begun->changed.wait_for(guard, kPatience, [&] { return begun->isOpen || begun->ended; })) {
        begun->isEnding = true;
        throw PlatformError{"The sound system does not answer"};
    }
    if (!begun->isOpen) {
        throw PlatformError{*begun->ended};
    }
    recording_ = begun;
    path_ = path;
}

void SdlRecorder::Stop() {
    if (recording_ == nullptr) {
        return;
    }
    End();
    std::string samples;
    {
        const std::lock_guard guard{recording_->lock};
        samples = recording_->samples;
    }
    if (samples.empty()) {
        recording_.reset();
        throw PlatformError{kNothingRecorded};
    }
    files_.Replace(path_, WaveFile(kRate, samples));
    recording_.reset();
}

bool SdlRecorder::IsRecording() const {
    if (recording_ == nullptr) {
        return false;
    }
    const std::lock_guard guard{recording_->lock};
    return recording_->TakesMore() && SteadyClock::now() < recording_->lastBrought + kLongestPause;
}

double SdlRecorder::Level() {
    if (recording_ == nullptr) {
        return 0;
    }
    const std::lock_guard guard{recording_->lock};
    return static_cast<double>(std::exchange(recording_->peak, 0)) / kLargestSample;
}

std::chrono::milliseconds SdlRecorder::Length() const {
    constexpr std::size_t kBytesASecond = std::size_t{kRate} * kSampleBytes;
    constexpr std::size_t kMillisecondsASecond = 1'000;
    if (recording_ == nullptr) {
        return 0ms;
    }
    const std::lock_guard guard{recording_->lock};
    return std::chrono::milliseconds{recording_->samples.size() * kMillisecondsASecond / kBytesASecond};
}

}  // namespace tallyhut
