#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/real/sdl_audio.h"
#include "platform/sound.h"

namespace tallyhut {

/// Plays wave files on the desktop's sound. The sound system, which may take its time or hang, is called by a thread of
/// the player's own alone, which is made by the first Play; all else sees what that thread and the device's have told.
/// The device stays open for the next file, if that has the same format and follows at once, and for no other.
class SdlPlayer : public WavePlayer {
public:
    SdlPlayer(const Files& files, std::shared_ptr<SdlAudio> audio);
    /// Silence. Leaves a sound system to itself that has not closed the device within a second.
    ~SdlPlayer() override;
    SdlPlayer(const SdlPlayer&) = delete;
    SdlPlayer& operator=(const SdlPlayer&) = delete;

    void Open(const std::string& path) override;
    void Play() override;
    void Stop() override;
    void Close() override;
    int Mode() const override;
    std::chrono::milliseconds Length() const override;

    struct Playback;

private:
    const Files& files_;
    std::shared_ptr<SdlAudio> audio_;
    std::shared_ptr<const WaveSamples> open_;
    std::shared_ptr<Playback> playback_;
};

}  // namespace tallyhut
