#include "platform/real/sdl_audio.h"

#include <SDL.h>

#include <string>
#include <utility>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

/// Short, so that a sound is heard and ends at once: closing a device takes three such times. Shorter ones would run
/// dry on a busy machine.
constexpr int kExchangeMs = 16;
constexpr int kMillisecondsASecond = 1'000;

void SDLCALL Exchange(void* user, Uint8* samples, int bytes) {
    (*static_cast<SampleExchange*>(user))(samples, static_cast<std::size_t>(bytes));
}

}  // namespace

SdlAudio::Device::~Device() {
    SDL_CloseAudioDevice(number_);
}

bool SdlAudio::Device::IsThere() const {
    return SDL_GetAudioDeviceStatus(number_) != SDL_AUDIO_STOPPED;
}

std::unique_ptr<SdlAudio::Device> SdlAudio::Open(bool isInput, const SampleFormat& format, SampleExchange exchange) {
    auto kept = std::make_unique<SampleExchange>(std::move(exchange));
    SDL_AudioSpec wanted{};
    wanted.freq = format.rate;
    wanted.format = format.coding;
    wanted.channels = static_cast<Uint8>(format.channels);
    wanted.samples = static_cast<Uint16>(format.rate * kExchangeMs / kMillisecondsASecond);
    wanted.callback = Exchange;
    wanted.userdata = kept.get();
    SDL_AudioDeviceID number = 0;
    {
        const std::lock_guard alone{oneCall_};
        number = SDL_OpenAudioDevice(nullptr, isInput ? 1 : 0, &wanted, nullptr, 0);
    }
    if (number == 0) {
        throw PlatformError{SDL_GetError()};
    }
    SDL_PauseAudioDevice(number, 0);
    return std::make_unique<Device>(number, std::move(kept));
}

SdlAudio::Connection::Connection(SdlAudio& audio) : audio_{audio} {
    const std::lock_guard alone{audio_.oneCall_};
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");                // the signals to terminate are the program's own
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Tallyhut Log");  // in the desktop's mixer
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        const std::string reason = SDL_GetError();
        SDL_TLSCleanup();
        throw PlatformError{reason};
    }
}

SdlAudio::Connection::~Connection() {
    const std::lock_guard alone{audio_.oneCall_};
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    SDL_TLSCleanup();  // what SDL keeps for a thread that is none of its own
}

}  // namespace tallyhut
