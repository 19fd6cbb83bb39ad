#include "platform/real/sdl_player.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;
using Moment = SteadyClock::time_point;

/// From the device's taking the last samples to the end of what is heard: they stand behind two of its buffers.
constexpr auto kTail = 50ms;
/// A device that asks for no samples for so long hangs. One that was asleep may take a second or two to wake.
constexpr auto kPatience = 5s;
/// The mode says of no playing that it is longer than its file and this.
constexpr auto kLeeway = 1s;
/// How long the player's end waits for the sound system.
constexpr auto kFarewell = 1s;
/// How often an unplugged device is looked for while it plays.
constexpr auto kLook = 50ms;
/// How long the device stays open behind the end for another file, which mostly begins in the same breath or not soon.
constexpr auto kForTheNext = 20ms;
/// How long the connection to the sound server stays up without a device.
constexpr auto kRest = 10s;

constexpr Uint8 kUnsignedSilence = 0x80;

/// One playing of a file, from its Play to its end.
struct Take {
    Take(std::shared_ptr<const WaveSamples> waveSamples, Moment now)
        : samples{std::move(waveSamples)}, begun{now}, lastAsked{now} {}

    const std::shared_ptr<const WaveSamples> samples;
    Moment begun;             // of Play, then of the first sample that the device asked for
    std::uint64_t given = 0;  // bytes; the device's thread's own
    Moment lastAsked;
    std::optional<Moment> spent = {};  // when the device had all
};

bool GoesOn(const Take& take, Moment now) {
    return take.spent ? now < *take.spent + kTail : now < take.lastAsked + kPatience;
}

}  // namespace

/// What the program's thread, the player's and the device's have in common.
struct SdlPlayer::Playback {
    std::mutex lock;
    std::condition_variable changed;
    std::shared_ptr<Take> take = {};  ///< what is to be heard; none is silence
    bool hasThread = false;
    bool isEnding = false;
    bool hasEnded = false;

    /// The device's thread asks for samples of the format that it was opened with.
    void Give(const SampleFormat& format, Uint8* samples, std::size_t bytes);
    /// The player's own thread.
    void Run(SdlAudio& audio);

private:
    using Guard = std::unique_lock<std::mutex>;

    void PlayTakes(SdlAudio& audio, Guard& guard);
    void AwaitEnd(const std::shared_ptr<Take>& playing, const SdlAudio::Device& device, Guard& guard);
    bool IsWanted() const { return take != nullptr || isEnding; }
    void Drop(const std::shared_ptr<Take>& over);
};

void SdlPlayer::Playback::Give(const SampleFormat& format, Uint8* samples, std::size_t bytes) {
    std::shared_ptr<Take> playing;
    {
        const std::lock_guard guard{lock};
        const Moment now = SteadyClock::now();
        if (take != nullptr && !take->spent && take->samples->format == format && GoesOn(*take, now)) {
            playing = take;
            playing->begun = playing->given == 0 ? now : playing->begun;
            playing->lastAsked = now;
        }
    }
    std::string part;
    if (playing != nullptr) {
        const std::uint64_t left = playing->samples->bytes - playing->given;
        try {
            part =
                playing->samples->read(playing->given, static_cast<std::size_t>(std::min<std::uint64_t>(bytes, left)));
        } catch (const PlatformError&) {
            // the medium with the file is gone: what is played ends here
        }
    }
    Uint8* const rest = std::ranges::copy(part, samples).out;
    std::fill(rest, samples + bytes, format.coding == AUDIO_U8 ? kUnsignedSilence : Uint8{0});
    if (playing == nullptr) {
        return;
    }
    playing->given += part.size();
    if (part.size() < bytes || playing->given == playing->samples->bytes) {
        const std::lock_guard guard{lock};
        playing->spent = SteadyClock::now();
        changed.notify_all();
    }
}

void SdlPlayer::Playback::Run(SdlAudio& audio) {
    Guard guard{lock};
    while (!isEnding) {
        changed.wait(guard, [this] { return IsWanted(); });
        if (!isEnding) {
            PlayTakes(audio, guard);
        }
    }
    hasEnded = true;
    changed.notify_all();
}

/// Plays takes until none has been wanted for a while. What fails was no take that is heard, which shows in the mode.
void SdlPlayer::Playback::PlayTakes(SdlAudio& audio, Guard& guard) {
    std::shared_ptr<Take> playing = take;
    guard.unlock();
    try {
        const SdlAudio::Connection connection{audio};
        std::unique_ptr<SdlAudio::Device> device;
        SampleFormat format;
        guard.lock();
        while (!isEnding && changed.wait_for(guard, kRest, [this] { return IsWanted(); }) && !isEnding) {
            playing = take;
            guard.unlock();
            if (device == nullptr || format != playing->samples->format) {
                device.reset();
                format = playing->samples->format;
                device = audio.Open(
                    false, format, [this, format](Uint8* samples, std::size_t bytes) { Give(format, samples, bytes); });
            }
            guard.lock();
            AwaitEnd(playing, *device, guard);
            Drop(playing);
            const bool goesOn = changed.wait_for(guard, kForTheNext, [this] { return IsWanted(); });
            if (!goesOn || isEnding || !device->IsThere()) {
                guard.unlock();
                device.reset();
                guard.lock();
            }
        }
        guard.unlock();
    } catch (const PlatformError&) {
        // no sound
    }
    guard.lock();
    Drop(playing);
}

/// Another may be wanted by now.
void SdlPlayer::Playback::Drop(const std::shared_ptr<Take>& over) {
    if (take == over) {
        take.reset();
    }
}

/// Waits until the take has been heard, another is wanted, or the device is gone.
void SdlPlayer::Playback::AwaitEnd(const std::shared_ptr<Take>& playing, const SdlAudio::Device& device, Guard& guard) {
    while (take == playing && !isEnding && device.IsThere() && GoesOn(*playing, SteadyClock::now())) {
        const Moment look = SteadyClock::now() + kLook;
        changed.wait_until(guard, playing->spent ? std::min(look, *playing->spent + kTail) : look);
    }
}

SdlPlayer::SdlPlayer(const Files& files, std::shared_ptr<SdlAudio> audio)
    : files_{files}, audio_{std::move(audio)}, playback_{std::make_shared<Playback>()} {}

SdlPlayer::~SdlPlayer() {
    std::unique_lock guard{playback_->lock};
    playback_->take.reset();
    playback_->isEnding = true;
    playback_->changed.notify_all();
    if (playback_->hasThread) {
        playback_->changed.wait_for(guard, kFarewell, [this] { return playback_->hasEnded; });
    }
}

void SdlPlayer::Open(const std::string& path) {
    Close();
    open_ = std::make_shared<const WaveSamples>(OpenWaveSamples(files_.OpenToRead(path), path));
}

void SdlPlayer::Play() {
    if (open_ == nullptr) {
        return;
    }
    const std::lock_guard guard{playback_->lock};
    playback_->take.reset();
    if (open_->bytes == 0) {
        return;
    }
    if (!playback_->hasThread) {
        try {
            std::thread{[playback = playback_, audio = audio_] { playback->Run(*audio); }}.detach();
        } catch (const std::system_error& failure) {
            throw PlatformError{failure.code().message()};
        }
        playback_->hasThread = true;
    }
    playback_->take = std::make_shared<Take>(open_, SteadyClock::now());
    playback_->changed.notify_all();
}

void SdlPlayer::Stop() {
    const std::lock_guard guard{playback_->lock};
    playback_->take.reset();
    playback_->changed.notify_all();
}

void SdlPlayer::Close() {
    Stop();
    open_.reset();
}

int SdlPlayer::Mode() const {
    const std::lock_guard guard{playback_->lock};
    const std::shared_ptr<Take>& take = playback_->take;
    const Moment now = SteadyClock::now();
    return take != nullptr && GoesOn(*take, now) && now < take->begun + take->samples->length + kLeeway ? kPlaying : 0;
}

std::chrono::milliseconds SdlPlayer::Length() const {
    return open_ != nullptr ? open_->length : 0ms;
}

}  // namespace tallyhut
