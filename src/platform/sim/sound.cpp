#include "platform/sim/sound.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "platform/path_error.h"
#include "platform/wave_format.h"

namespace tallyhut::sim {
namespace {

constexpr Microtick kMicroticksASecond = 1'000'000;

struct WavePlayer : tallyhut::WavePlayer {
    WavePlayer(Sound& machineSound, std::string playerName) : sound{machineSound}, name{std::move(playerName)} {}

    Sound& sound;
    const std::string name;
    std::string file = {};
    WaveFormat format = {};
    mutable std::optional<Microtick> begun = {};  // nothing once the playing has ended

    void Open(const std::string& path) override {
        Forget();
        if (!sound.refusal.empty()) {
            throw PathError(path, sound.refusal);
        }
        format = ReadWaveFormat(*sound.files.OpenToRead(path), path);
        file = path;
        sound.Note(name, "open", file);
    }

    void Play() override {
        if (!file.empty()) {
            begun = sound.clock.TickUs();
            sound.Note(name, "play", file);
        }
    }

    void Stop() override {
        if (!file.empty()) {
            begun.reset();
            sound.Note(name, "stop", file);
        }
    }

    void Close() override {
        if (!file.empty()) {
            sound.Note(name, "close", file);
        }
        Forget();
    }

    int Mode() const override {
        if (begun && (!sound.isPluggedIn || sound.clock.TickUs() >= End())) {
            begun.reset();
        }
        return begun ? kPlaying : 0;
    }

    std::chrono::milliseconds Length() const override { return format.Length(); }

private:
    Microtick End() const {
        const auto rate = static_cast<std::uint64_t>(std::max(format.rate, 1));
        const Microtick length = (format.frames * kMicroticksASecond + rate - 1) / rate;
        return *begun + length + (sound.isHanging ? kMicroticksASecond : 0);
    }

    void Forget() {
        file.clear();
        format = {};
        begun.reset();
    }
};

struct WaveRecorder : tallyhut::WaveRecorder {
    explicit WaveRecorder(Sound& machineSound) : sound{machineSound} {}

    static constexpr std::size_t kSampleBytes = 2;

    Sound& sound;
    std::string file = {};  // empty once all is saved
    Microtick begun = 0;
    std::optional<Microtick> ended = {};

    void Start(const std::string& path) override {
        file.clear();
        if (!sound.inputRefusal.empty()) {
            throw PlatformError{sound.inputRefusal};
        }
        file = path;
        begun = sound.clock.TickUs();
        ended.reset();
    }

    void Stop() override {
        if (file.empty()) {
            return;
        }
        const Microtick recorded = Recorded();
        ended = begun + recorded;
        if (recorded == 0) {
            file.clear();
            throw PlatformError{kNothingRecorded};
        }
        const std::size_t samples = recorded * kRate / kMicroticksASecond;
        sound.files.Replace(file, WaveFile(kRate, std::string(samples * kSampleBytes, '\0')));
        file.clear();
    }

    bool IsRecording() const override { return !file.empty() && !ended && Recorded() < kMostMicroticks; }
    double Level() override { return IsRecording() ? sound.inputLevel : 0; }
    std::chrono::milliseconds Length() const override {
        return std::chrono::milliseconds{file.empty() ? 0 : Recorded() / kMicroticksATick};
    }

private:
    static constexpr Microtick kMostMicroticks = std::chrono::microseconds{kLongest}.count();

    Microtick Recorded() const { return std::min(ended.value_or(sound.clock.TickUs()) - begun, kMostMicroticks); }
};

}  // namespace

std::unique_ptr<tallyhut::WavePlayer> Sound::NewPlayer(std::string name) {
    return std::make_unique<WavePlayer>(*this, std::move(name));
}

std::unique_ptr<tallyhut::WaveRecorder> Sound::NewRecorder() {
    return std::make_unique<WaveRecorder>(*this);
}

void Sound::Note(const std::string& player, const std::string& command, const std::string& file) {
    if (commands.size() == 2 * kKept) {
        commands.erase(commands.begin(), commands.begin() + kKept);
    }
    commands.push_back({.at = clock.TickUs(), .player = player, .command = command, .file = file});
    onCommand(commands.back());
}

}  // namespace tallyhut::sim
