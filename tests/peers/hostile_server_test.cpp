// What pretends to be a server of radios and is none, over real connections and in real time.

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <filesystem>

#include "rig/flrig_dialect.h"
#include "rig/rigctld_dialect.h"
#include "tests/peers/flrig_server.h"
#include "tests/peers/loopback_service.h"
#include "tests/peers/shack.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;

constexpr int kTime = 6'000;  // ms

void Floods(ServedClient& client) {
    const std::string noise(65'536, 'x');
    while (client.IsThere()) {
        client.Send(noise);
    }
}

/// Good answers, which nobody has asked for.
void FloodsWithFrequencies(ServedClient& client) {
    std::string answers;
    for (int i = 0; i < 1'000; ++i) {
        answers += "get_freq:\nFrequency: 14040500\nRPRT 0\n";
    }
    while (client.IsThere()) {
        client.Send(answers);
    }
}

void Stalls(ServedClient& client) {
    while (client.IsThere()) {
        client.Receive();
    }
}

void AnswersTheWrongThing(ServedClient& client) {
    while (client.IsThere()) {
        if (!client.Receive().empty()) {
            client.Send("get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n");
        }
    }
}

void AnswersWithAPage(ServedClient& client) {
    const std::string page = "<html><body onload=\"alert(1)\">14040500</body></html>";
    while (client.IsThere()) {
        if (!client.Receive().empty()) {
            client.Send("HTTP/1.1 200 OK\r\nContent-length: " + std::to_string(page.size()) + "\r\n\r\n" + page);
        }
    }
}

void HangsUpAtOnce(ServedClient& /*client*/) {}

void HangsUpBehindAByte(ServedClient& client) {
    client.Send("0");
}

void DripsForEver(ServedClient& client) {
    while (client.IsThere()) {
        client.Send("H");
        client.Receive();
    }
}

void PromisesTheMost(ServedClient& client) {
    client.Send("HTTP/1.1 200 OK\r\nContent-length: 65536\r\n\r\n");
    while (client.IsThere()) {
        client.Send("<a>");
    }
}

struct HostileRow {
    const char* what;
    void (*talk)(ServedClient&);
};

constexpr std::array kHostile{
    HostileRow{"floods", Floods},
    HostileRow{"floods with frequencies", FloodsWithFrequencies},
    HostileRow{"stalls", Stalls},
    HostileRow{"answers the wrong thing", AnswersTheWrongThing},
    HostileRow{"answers with a page", AnswersWithAPage},
    HostileRow{"hangs up at once", HangsUpAtOnce},
    HostileRow{"hangs up behind a byte", HangsUpBehindAByte},
    HostileRow{"drips for ever", DripsForEver},
    HostileRow{"promises the most", PromisesTheMost},
};

std::size_t OpenDescriptors() {
    const std::filesystem::directory_iterator all{"/proc/self/fd"};
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

struct HostileServers : testing::TestWithParam<const ServerDialect*> {
    Shack shack;
};

TEST_P(HostileServers, GiveNoReadingAndTakeNothingFromOthers) {
    struct Victim {
        Victim(Shack& shack, const HostileRow& row) : what{row.what}, service{row.talk}, radio{shack} {}
        const char* what;
        LoopbackService service;
        PolledServer radio;
    };
    std::deque<Victim> victims;
    for (const HostileRow& row : kHostile) {
        Victim& victim = victims.emplace_back(shack, row);
        victim.radio.server.Open(*GetParam(), "127.0.0.1", victim.service.Port());
    }
    FlrigServer good;
    PolledServer radio{shack};
    radio.server.Open(kFlrig, "127.0.0.1", good.Port());
    shack.Run(200);
    const std::size_t descriptors = OpenDescriptors();
    const int waits = shack.pump.waits;
    shack.Run(kTime);
    for (Victim& victim : victims) {
        EXPECT_TRUE(victim.radio.frequencies.empty()) << victim.what;
        EXPECT_NE(victim.radio.server.Link(), RigServerLink::Connected) << victim.what;
        EXPECT_FALSE(victim.radio.server.Tune(14'025'000, "CW")) << victim.what;
        EXPECT_LE(victim.service.Connections(), 3) << victim.what << ": the attempts grow rarer";
        victim.radio.server.Close();
    }
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    EXPECT_EQ(good.Connections(), 1);
    // Each alarm, each byte of those that drip, and the answers of the good one; a busy loop has a thousand times that.
    EXPECT_LT(shack.pump.waits - waits, 50'000);
    EXPECT_LE(OpenDescriptors(), descriptors + 2 * kHostile.size());
}

TEST_P(HostileServers, LeaveNothingBehindWhenTheyAreClosed) {
    const std::size_t before = OpenDescriptors();
    {
        const LoopbackService service{HangsUpBehindAByte};
        PolledServer radio{shack};
        for (int i = 0; i < 200; ++i) {
            radio.server.Open(*GetParam(), "127.0.0.1", service.Port());
            shack.Run(5);
            radio.server.Close();
        }
    }
    EXPECT_EQ(OpenDescriptors(), before);
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, HostileServers, testing::Values(&kRigctld, &kFlrig),
                         [](const auto& instance) { return instance.param == &kRigctld ? "Rigctld" : "Flrig"; });

}  // namespace
}  // namespace tallyhut
