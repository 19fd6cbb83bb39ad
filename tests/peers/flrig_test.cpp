// A radio's control program over a real connection, in real time.

#include <gtest/gtest.h>

#include "rig/flrig_dialect.h"
#include "tests/peers/flrig_server.h"
#include "tests/peers/shack.h"

namespace tallyhut {
namespace {

struct FlrigOnTheNet : testing::Test {
    FlrigServer flrig;
    Shack shack;
    PolledServer radio{shack};

    void Open() { radio.server.Open(kFlrig, "127.0.0.1", flrig.Port()); }
    std::vector<std::string> Sets() {
        return flrig.With([this] { return flrig.sets; });
    }
};

TEST_F(FlrigOnTheNet, RadioIsFollowed) {
    Open();
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    EXPECT_EQ(radio.server.Link(), RigServerLink::Connected);
    flrig.With([this] {
        flrig.hertz = 21'300'100;
        flrig.mode = "USB";
    });
    EXPECT_TRUE(radio.Tells(21.3001F, "PH"));
    EXPECT_EQ(flrig.Connections(), 1);
}

TEST_F(FlrigOnTheNet, RadioIsTunedInItsOwnWords) {
    Open();
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    EXPECT_TRUE(radio.server.Tune(7'035'000, "RTTY"));
    EXPECT_TRUE(radio.Tells(7.035F, "PH"));
    EXPECT_EQ(Sets(), (std::vector<std::string>{"set_mode FSK", "set_vfo 7035000"}));
    EXPECT_TRUE(radio.server.SetMode("CW-R"));
    EXPECT_TRUE(radio.Tells(7.035F, "CW"));
    EXPECT_EQ(Sets().back(), "set_mode CW-R");
}

TEST_F(FlrigOnTheNet, WhatItSaysWithoutARadioIsNotBelieved) {
    flrig.With([this] { flrig.radio.clear(); });
    Open();
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
    shack.Run(1'000);
    EXPECT_TRUE(radio.frequencies.empty());
    EXPECT_FALSE(radio.server.Tune(7'035'000, "CW"));
    flrig.With([this] { flrig.radio = "TS-2000"; });
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    EXPECT_EQ(flrig.Connections(), 1) << "nothing was wrong with the connection";
    EXPECT_TRUE(Sets().empty());

    flrig.With([this] { flrig.radio.clear(); });
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
}

TEST_F(FlrigOnTheNet, OldServerWithoutAListOfModesIsReadAndTunedWithoutMode) {
    flrig.With([this] { flrig.knowsModes = false; });
    Open();
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    EXPECT_TRUE(radio.server.Tune(7'035'000, "LSB"));
    EXPECT_TRUE(radio.Tells(7.035F, "CW"));
    EXPECT_EQ(Sets(), std::vector<std::string>{"set_vfo 7035000"});
}

TEST_F(FlrigOnTheNet, ServerThatHangsUpInAnAnswerIsFoundAgain) {
    Open();
    EXPECT_TRUE(radio.Tells(14.025F, "CW"));
    flrig.With([this] { flrig.hangsUp = true; });
    EXPECT_TRUE(radio.Becomes(RigServerLink::NoAnswer));
    flrig.With([this] { flrig.hertz = 3'550'000; });
    EXPECT_TRUE(radio.Tells(3.55F, "CW"));
    EXPECT_EQ(flrig.Connections(), 2);
}

}  // namespace
}  // namespace tallyhut
