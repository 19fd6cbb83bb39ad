#include "platform/real/sdl_sound.h"

#include "platform/real/sdl_player.h"
#include "platform/real/sdl_recorder.h"

namespace tallyhut {

SdlSound::SdlSound(Files& machineFiles) : files{machineFiles}, audio{std::make_shared<SdlAudio>()} {}

std::unique_ptr<WavePlayer> SdlSound::NewPlayer(std::string /*name*/) {
    return std::make_unique<SdlPlayer>(files, audio);
}

std::unique_ptr<WaveRecorder> SdlSound::NewRecorder() {
    return std::make_unique<SdlRecorder>(files, audio);
}

}  // namespace tallyhut
