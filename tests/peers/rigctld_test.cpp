// Hamlib's own server over a real connection, in real time: with a radio that is none, and with one of ours behind it.

#include <gtest/gtest.h>

#include <atomic>

#include "rig/rigctld_dialect.h"
#include "tests/peers/kenwood_radio.h"
#include "tests/peers/radio_cable.h"
#include "tests/peers/rigctld_process.h"
#include "tests/peers/shack.h"

namespace tallyhut {
namespace {

const std::vector<std::string> kDummy{"-m", "1"};
const std::vector<std::string> kDummyThatWantsVfos{"-m", "1", "-o"};

struct RigctldOnTheNet : testing::Test {
    Shack shack;
    PolledServer radio{shack};

    void SetUp() override {
        if (!RigctldProcess::IsInstalled()) {
            GTEST_SKIP() << "rigctld is not installed";
        }
    }
    void Open(const RigctldProcess& rigctld) { radio.server.Open(kRigctld, "127.0.0.1", rigctld.Port()); }
};

TEST_F(RigctldOnTheNet, RadioIsReadAndTuned) {
    for (const std::vector<std::string>& arguments : {kDummy, kDummyThatWantsVfos}) {
        const RigctldProcess rigctld{arguments};
        Open(rigctld);
        EXPECT_TRUE(radio.Tells(145.0F, "PH")) << "which that radio begins with";
        EXPECT_TRUE(radio.server.Tune(7'035'100, "CW-R"));
        EXPECT_TRUE(radio.Tells(7.0351F, "CW"));
        EXPECT_TRUE(radio.server.SetMode("DIG"));
        EXPECT_TRUE(radio.Tells(7.0351F, "PH"));
        EXPECT_EQ(radio.server.Link(), RigServerLink::Connected);
    }
}

TEST_F(RigctldOnTheNet, ServerThatIsKilledInAPollIsFoundAgain) {
    RigctldProcess rigctld{kDummy};
    Open(rigctld);
    EXPECT_TRUE(radio.Tells(145.0F, "PH"));
    EXPECT_TRUE(radio.server.Tune(14'025'000, "CW"));
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    radio.server.Poll();
    rigctld.Kill();
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
    EXPECT_FALSE(radio.server.Tune(14'030'000, "CW"));
    radio.mode.clear();
    rigctld.Start();
    EXPECT_TRUE(radio.Tells(145.0F, "PH")) << "by itself, and what was told in vain is forgotten";
}

TEST_F(RigctldOnTheNet, ServerThatIsStartedLaterIsFound) {
    RigctldProcess rigctld{kDummy};
    rigctld.Kill();
    Open(rigctld);
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
    rigctld.Start();
    EXPECT_TRUE(radio.Tells(145.0F, "PH"));
}

/// Our own radio behind the server, which may be switched off.
struct RadioBehindRigctld : RigctldOnTheNet {
    KenwoodRadio kenwood;
    std::atomic<bool> isOn = true;
    RadioCable cable{[this](std::string_view bytes) { return isOn ? kenwood.Hear(bytes) : std::string{}; }};
    const std::vector<std::string> arguments{"-m", "2014", "-s", "57600", "-r", cable.Path()};
};

TEST_F(RadioBehindRigctld, RadioIsFollowedAndTuned) {
    const RigctldProcess rigctld{arguments};
    Open(rigctld);
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    cable.With([this] {
        kenwood.hertz[0] = 21'300'000;
        kenwood.mode = '2';
    });
    EXPECT_TRUE(radio.Tells(21.3F, "PH"));
    EXPECT_TRUE(radio.server.Tune(7'035'000, "CW"));
    EXPECT_TRUE(radio.Tells(7.035F, "CW"));
    EXPECT_EQ(cable.With([this] { return kenwood.hertz[0]; }), 7'035'000);
    EXPECT_EQ(cable.With([this] { return kenwood.mode; }), '3');
}

TEST_F(RadioBehindRigctld, RadioThatIsSwitchedOffAndOnIsFollowedAgain) {
    const RigctldProcess rigctld{arguments};
    Open(rigctld);
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    isOn = false;
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
    EXPECT_FALSE(radio.server.Tune(7'035'000, "CW"));
    EXPECT_EQ(radio.frequency, 14.025F) << "nothing else was told";
    cable.With([this] { kenwood.hertz[0] = 3'550'000; });
    isOn = true;
    EXPECT_TRUE(shack.Until([this] { return radio.frequency == 3.55F; }, 60'000));
    EXPECT_EQ(radio.server.Link(), RigServerLink::Connected);
}

}  // namespace
}  // namespace tallyhut
