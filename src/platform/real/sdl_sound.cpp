#include "platform/real/sdl_sound.h"

#include "platform/wave_format.h"

namespace tallyhut {
namespace {

/// No sound card.
struct SilentPlayer : WavePlayer {
    explicit SilentPlayer(Files& machineFiles) : files{machineFiles} {}

    Files& files;
    WaveFormat format;

    void Open(const std::string& path) override { format = ReadWaveFormat(*files.OpenToRead(path), path); }
    void Play() override {}
    void Stop() override {}
    void Close() override { format = {}; }
    int Mode() const override { return 0; }
    std::chrono::milliseconds Length() const override { return format.Length(); }
};

/// No input.
struct DeafRecorder : WaveRecorder {
    void Start(const std::string& /*path*/) override { throw PlatformError{"No sound"}; }
    void Stop() override {}
    bool IsRecording() const override { return false; }
    double Level() override { return 0; }
    std::chrono::milliseconds Length() const override { return {}; }
};

}  // namespace

std::unique_ptr<WavePlayer> SdlSound::NewPlayer(std::string /*name*/) {
    return std::make_unique<SilentPlayer>(files);
}

std::unique_ptr<WaveRecorder> SdlSound::NewRecorder() {
    return std::make_unique<DeafRecorder>();
}

}  // namespace tallyhut
