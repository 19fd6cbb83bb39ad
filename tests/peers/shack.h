#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/real/posix_socket.h"
#include "platform/real/system_clock.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/dialogs.h"
#include "rig/rig_server.h"
#include "tests/peers/descriptor_pump.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// A loop in real time, with real sockets.
struct Shack {
    SystemClock clock;
    DescriptorPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    PosixSockets sockets;

    /// False if it has not come true after so long.
    bool Until(const std::function<bool()>& claim, Tick patience = 30'000) {
        const Tick limit = clock.TickMs() + patience;
        Alarm looks{desk, [] {}};
        looks.Start(5);
        bool came = false;
        desk.RunUntil([&] {
            came = claim();
            return came || clock.TickMs() >= limit;
        });
        return came;
    }
    void Run(std::int32_t milliseconds) {
        bool over = false;
        Alarm end{desk, [&over] { over = true; }};
        end.StartOnce(milliseconds);
        desk.RunUntil([&over] { return over; });
    }
};

/// A radio behind a server, polled at the fastest rate, and what it tells.
struct PolledServer {
    explicit PolledServer(Shack& owner, std::int32_t interval = kFastest)
        : shack{owner}, server{owner.sockets, owner.desk} {
        server.read = [this](const RigReading& reading) {
            frequency = reading.frequency.value_or(frequency);
            mode = reading.mode.value_or(mode);
            frequencies.push_back(frequency);
        };
        polls.Start(interval);
    }

    static constexpr std::int32_t kFastest = 100;  ///< ms

    Shack& shack;
    RigServer server;
    Alarm polls{shack.desk, [this] { server.Poll(); }};
    float frequency = 0;  ///< MHz
    std::string mode;
    std::vector<float> frequencies;  ///< as told, one a reading

    bool Becomes(RigServerLink link) {
        return shack.Until([&] { return server.Link() == link; });
    }
    bool Tells(float megahertz, std::string_view modeTold) {
        return shack.Until([&] { return frequency == megahertz && mode == modeTold; });
    }
};

}  // namespace tallyhut
