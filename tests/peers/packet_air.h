#pragma once

#include <sys/types.h>

#include <array>
#include <atomic>
#include <string>
#include <thread>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// Two packet engines that are not ours, on one imaginary frequency and without a sound card: what one of them
/// transmits is carried to the other's ears, and silence where nobody transmits. Their files lie in a folder.
class PacketAir {
public:
    explicit PacketAir(const std::string& folder);
    ~PacketAir();
    PacketAir(const PacketAir&) = delete;
    PacketAir& operator=(const PacketAir&) = delete;
    PacketAir(PacketAir&&) = delete;
    PacketAir& operator=(PacketAir&&) = delete;

    /// Where an engine, 0 or 1, takes clients.
    int Port(int engine) const { return engines_.at(static_cast<std::size_t>(engine)).clients; }
    /// Ends an engine as its user does.
    void Stop(int engine);

private:
    struct Engine {
        pid_t process = -1;
        int clients = 0;
        int ears = 0;
        Descriptor transmitted;
        std::string onTheWay = {};
    };

    void Begin(Engine& engine, const std::string& home);
    int FreePort(int type);
    void Carry();

    int nextPort_;
    std::array<Engine, 2> engines_;
    std::atomic<bool> over_ = false;
    std::thread air_;
};

/// A station at the other end: a client of an engine, which waits for each thing that is to happen.
class PacketStation {
public:
    /// Comes to an engine as soon as it takes clients, and registers its call.
    PacketStation(int port, std::string call);

    /// A frame of a kind, from the own call.
    void Send(char kind, const std::string& to, const std::string& data = "") const;
    /// The data of the next frame of a kind; what comes before it is left out. "(nothing)" when none comes.
    std::string Next(char kind);

private:
    /// False when nothing comes or the engine has gone.
    bool Read(std::string& bytes, std::size_t count);

    std::string call_;
    Descriptor engine_;
};

}  // namespace tallyhut
