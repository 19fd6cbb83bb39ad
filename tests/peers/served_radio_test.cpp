// The whole program in real time, with a server of radios at the other end of a real connection.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "tests/peers/flrig_server.h"
#include "tests/peers/program_on_the_wire.h"
#include "tests/peers/rigctld_process.h"
#include "tests/platform/loopback_server.h"

namespace tallyhut {
namespace {

/// What Hamlib's server answers to a request of another client; empty while nobody is there.
std::string AskOnce(const RigctldProcess& server, const std::string& line) {
    const Descriptor client{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(server.Port()));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the sockets' own way
    if (connect(client.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
        return {};
    }
    const std::string request = line + '\n';
    send(client.Number(), request.data(), request.size(), MSG_NOSIGNAL);
    std::array<char, 256> answer{};
    const ssize_t count = recv(client.Number(), answer.data(), answer.size(), 0);
    return count > 0 ? std::string{answer.data(), static_cast<std::size_t>(count)} : std::string{};
}

/// The same, again where there is none: a client that comes on the heels of another is dropped now and then.
std::string Ask(const RigctldProcess& server, const std::string& line) {
    constexpr int kTries = 100;
    constexpr std::chrono::milliseconds kPause{50};
    std::string answer;
    for (int n = 0; n < kTries && (answer = AskOnce(server, line)).empty(); ++n) {
        std::this_thread::sleep_for(kPause);
    }
    return answer;
}

struct ServedRadio : ProgramOnTheWire {
    void PollFromTheMainForm(const std::string& name, int port, const char* rate) {
        Start();
        PickRig(name);
        Do("set txtRigPort \"" + std::to_string(port) + '"');
        Do(std::string{"click "} + rate);
        Do("click cmdDone");
    }
};

/// Its radio is one that Hamlib simulates, and that forgets what it was set to when the server ends.
struct ProgramWithRigctld : ServedRadio {
    RigctldProcess server{{"-m", "1"}};

    void SetUp() override {
        if (!RigctldProcess::IsInstalled()) {
            GTEST_SKIP() << "rigctld is not installed";
        }
    }
    /// Somebody turns the knob.
    void TurnTo(long hertz, const std::string& mode) const {
        EXPECT_EQ(Ask(server, "F " + std::to_string(hertz)), "RPRT 0\n");
        EXPECT_EQ(Ask(server, "M " + mode + " -1"), "RPRT 0\n");
    }
    void PollFromTheMainForm(const char* rate = "optPollMed") {
        ServedRadio::PollFromTheMainForm("Hamlib (rigctld)", server.Port(), rate);
    }
};

TEST_F(ProgramWithRigctld, BandOfTheMainFormFollowsWithinTwoPolls) {
    constexpr auto kTwoPolls = std::chrono::seconds{1};
    TurnTo(14'025'000, "CW");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("Label30", "20"));
    std::vector<Clock::duration> waits;
    for (const auto& [hertz, band] : {std::pair{7'025'100L, "40"}, {28'400'000L, "10"}, {1'850'000L, "160"}}) {
        EXPECT_EQ(Ask(server, "F " + std::to_string(hertz)), "RPRT 0\n");
        const auto begin = Clock::now();
        EXPECT_TRUE(Shows("Label30", band));
        waits.push_back(Clock::now() - begin);
    }
    std::ranges::sort(waits);
    EXPECT_LE(waits[1], kTwoPolls);  // the middle one: a machine may be busy
    EXPECT_EQ(Get("RigControlfrm.lblRigLink"), R"("Connected")");
}

TEST_F(ProgramWithRigctld, ContactBearsBandAndFrequencyOfTheRadio) {
    TurnTo(21'300'400, "USB");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("$gFrq", "21.300"));
    EXPECT_TRUE(Shows("$RigMode", "PH"));
    program->LogContact("88aw1xx72mdc");
    EXPECT_EQ(LastContactBears(), "\"15\",\"21.300\"\r\n");
}

TEST_F(ProgramWithRigctld, TuneFormSetsFrequencyAndModeOfTheRadio) {
    TurnTo(14'025'000, "AM");
    PollFromTheMainForm("optPollFast");
    EXPECT_TRUE(Shows("Label30", "20"));
    Do("key Ctrl+G");
    for (const auto& [typed, hertz, mode, band] :
         {std::array{"7.0251", "7025100", "CW", "40"}, std::array{"14.2", "14200000", "USB", "20"},
          std::array{"3.8", "3800000", "LSB", "80"}, std::array{"1.85", "1850000", "LSB", "160"}}) {
        Tune(typed);
        ASSERT_TRUE(Becomes(hertz + std::string{"\n"}, [this] { return Ask(server, "f"); })) << typed;
        EXPECT_TRUE(Ask(server, "m").starts_with(mode)) << typed;
        ASSERT_TRUE(Shows("Form1.Label30", band));
    }
    EXPECT_EQ(program->LastTurn(), R"({"ready":"idle","form":"frmRigTune","focus":"txtFreq"})");
}

TEST_F(ProgramWithRigctld, ServerThatIsKilledInMidPollIsFoundAgain) {
    TurnTo(14'025'000, "CW");
    PollFromTheMainForm("optPollFast");
    EXPECT_TRUE(Shows("$gFrq", "14.025"));
    server.Kill();
    EXPECT_TRUE(Shows("RigControlfrm.lblRigLink", "No answer"));
    ExpectKeysAreTaken();
    EXPECT_TRUE(Shows("lblRig", "Radio: no answer"));
    EXPECT_EQ(Get("$gFrq"), R"("")");
    EXPECT_EQ(Get("Label30"), R"("20")");
    program->LogContact("88aw1xx72mdc");
    EXPECT_EQ(LastContactBears(), "\"20\",\"\"\r\n");

    Do("key Ctrl+G");
    Tune("7.0251");
    EXPECT_EQ(program->LastTurn(), R"({"ready":"answer","dialog":"msgbox"})");
    Do("answer OK");
    server.Start();
    TurnTo(3'850'000, "LSB");
    EXPECT_TRUE(Shows("Form1.Label30", "80"));
    EXPECT_TRUE(Shows("RigControlfrm.lblRigLink", "Connected"));
    EXPECT_EQ(Ask(server, "f"), "3850000\n") << "what was asked for is not brought to it";
    EXPECT_EQ(program->LastTurn(), R"({"ready":"idle","form":"frmRigTune","focus":"txtFreq"})");
}

TEST_F(ProgramWithRigctld, NextStartFindsTheServerByItself) {
    TurnTo(21'300'000, "USB");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("Label30", "15"));
    Do("close Form1");
    EXPECT_EQ(program->Wait(), 0);
    TurnTo(7'025'000, "CW");
    Start();
    EXPECT_TRUE(Shows("Label30", "40"));
}

struct ProgramWithFlrig : ServedRadio {
    FlrigServer server;

    void PollFromTheMainForm() { ServedRadio::PollFromTheMainForm("flrig", server.Port(), "optPollFast"); }
};

TEST_F(ProgramWithFlrig, RadioIsFollowedAndTuned) {
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("$gFrq", "14.025"));
    EXPECT_TRUE(Shows("$RigMode", "CW"));
    server.With([this] { server.hertz = 21'300'000; });
    EXPECT_TRUE(Shows("Label30", "15"));
    Do("key Ctrl+G");
    Tune("7.0251");
    EXPECT_TRUE(Becomes("7025100 CW", [this] {
        return server.With([this] { return std::to_string(server.hertz) + ' ' + server.mode; });
    }));
    EXPECT_TRUE(Shows("Form1.Label30", "40"));
}

TEST_F(ProgramWithFlrig, ProgramWithoutARadioIsNoRadio) {
    server.With([this] { server.radio.clear(); });
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("RigControlfrm.lblRigLink", "No answer"));
    EXPECT_TRUE(Shows("lblRig", "Radio: no answer"));
    EXPECT_EQ(Get("$gFrq"), R"("")");
    server.With([this] { server.radio = "TS-2000"; });
    EXPECT_TRUE(Shows("$gFrq", "14.025"));
}

}  // namespace
}  // namespace tallyhut
