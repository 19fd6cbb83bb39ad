#pragma once

#include "platform/files.h"
#include "platform/sound.h"

namespace tallyhut {

class SdlAudio;

/// The sound of the desktop. Nothing is asked of it, no device is open and no thread stands before the first Play or
/// Start. Some seconds behind the last one's end the connection to it is given up.
struct SdlSound : Sound {
    /// Wave files are read and recordings written by these.
    explicit SdlSound(Files& machineFiles);

    std::unique_ptr<WavePlayer> NewPlayer(std::string name) override;
    std::unique_ptr<WaveRecorder> NewRecorder() override;

    Files& files;
    std::shared_ptr<SdlAudio> audio;
};

}  // namespace tallyhut
