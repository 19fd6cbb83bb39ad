#pragma once

#include <SDL_audio.h>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/real/wave_samples.h"

namespace tallyhut {

/// What the device's own thread asks for again and again: samples to play, or to take those it has recorded.
using SampleExchange = std::function<void(Uint8* samples, std::size_t bytes)>;

/// The desktop's sound, as SDL reaches it. Each call may take as long as the sound server likes, so it belongs in a
/// thread of its own; one call at a time is made of those that SDL does not let happen at once.
class SdlAudio {
public:
    /// One open device, heard from the start; closed with its owner, which waits for its last exchange.
    class Device {
    public:
        Device(SDL_AudioDeviceID number, std::unique_ptr<SampleExchange> exchange)
            : number_{number}, exchange_{std::move(exchange)} {}
        Device(const Device&) = delete;
        Device& operator=(const Device&) = delete;
        ~Device();

        /// False once it is unplugged.
        bool IsThere() const;

    private:
        SDL_AudioDeviceID number_;
        std::unique_ptr<SampleExchange> exchange_;
    };

    /// The default device, asked for 16 ms at a time; a connection stands, and goes on standing until it is closed.
    /// Throws PlatformError with the reason where there is none.
    std::unique_ptr<Device> Open(bool isInput, const SampleFormat& format, SampleExchange exchange);

    /// While any exists the connection to the sound server stands. One at a time in each thread. Throws PlatformError
    /// with the reason where there is none to be had.
    class Connection {
    public:
        explicit Connection(SdlAudio& audio);
        Connection(const Connection&) = delete;
        Connection& operator=(const Connection&) = delete;
        ~Connection();

    private:
        SdlAudio& audio_;
    };

private:
    std::mutex oneCall_;
};

}  // namespace tallyhut
