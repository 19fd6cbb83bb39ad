// The whole program in real time, with a server of radios at the other end of a real connection.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <algorithm>
#include <array>
#include <csignal>

#include "tests/peers/program_on_the_wire.h"
#include "tests/platform/loopback_server.h"
#include "tests/window/processes.h"

namespace tallyhut {
namespace {

int FreePort() {
    return LoopbackServer{}.Port();
}

/// Hamlib's server with its own simulated radio, which forgets what it was set to when it ends.
class Rigctld {
public:
    Rigctld() { Start(); }
    ~Rigctld() { Kill(); }
    Rigctld(const Rigctld&) = delete;
    Rigctld& operator=(const Rigctld&) = delete;
    Rigctld(Rigctld&&) = delete;
    Rigctld& operator=(Rigctld&&) = delete;

    int Port() const { return port_; }
    void Start() {
        process_ = StartProcess({"rigctld", "-m", "1", "-T", "127.0.0.1", "-t", std::to_string(port_)},
                                [] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
    void Kill() { EndProcess(process_, SIGKILL); }

    /// What it answers to a request of another client; empty while nobody is there.
    std::string Ask(const std::string& line) const {
        const Descriptor client{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<std::uint16_t>(port_));
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

private:
    int port_ = FreePort();
    pid_t process_ = 0;
};

struct RadioBehindRigctld : ProgramOnTheWire {
    Rigctld server;

    /// Somebody turns the knob.
    void TurnTo(long hertz, const std::string& mode) const {
        EXPECT_TRUE(Becomes("RPRT 0\n", [&] { return server.Ask("F " + std::to_string(hertz)); }));
        EXPECT_EQ(server.Ask("M " + mode + " -1"), "RPRT 0\n");
    }
    void PollFromTheMainForm(const char* rate = "optPollMed") {
        Start();
        PickRig("Hamlib (rigctld)");
        Do("set txtRigPort \"" + std::to_string(server.Port()) + '"');
        Do(std::string{"click "} + rate);
        Do("click cmdDone");
    }
};

TEST_F(RadioBehindRigctld, BandOfTheMainFormFollowsWithinTwoPolls) {
    constexpr auto kTwoPolls = std::chrono::seconds{1};
    TurnTo(14'025'000, "CW");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("Label30", "20"));
    std::vector<Clock::duration> waits;
    for (const auto& [hertz, band] : {std::pair{7'025'100L, "40"}, {28'400'000L, "10"}, {1'850'000L, "160"}}) {
        EXPECT_EQ(server.Ask("F " + std::to_string(hertz)), "RPRT 0\n");
        const auto begin = Clock::now();
        EXPECT_TRUE(Shows("Label30", band));
        waits.push_back(Clock::now() - begin);
    }
    std::ranges::sort(waits);
    EXPECT_LE(waits[1], kTwoPolls);  // the middle one: a machine may be busy
    EXPECT_EQ(Get("RigControlfrm.lblRigLink"), R"("Connected")");
}

TEST_F(RadioBehindRigctld, ContactBearsBandAndFrequencyOfTheRadio) {
    TurnTo(21'300'400, "USB");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("$gFrq", "21.300"));
    EXPECT_TRUE(Shows("$RigMode", "PH"));
    program->LogContact("88aw1xx72mdc");
    EXPECT_EQ(LastContactBears(), "\"15\",\"21.300\"\r\n");
}

TEST_F(RadioBehindRigctld, TuneFormSetsFrequencyAndModeOfTheRadio) {
    TurnTo(14'025'000, "AM");
    PollFromTheMainForm("optPollFast");
    EXPECT_TRUE(Shows("Label30", "20"));
    Do("key Ctrl+G");
    for (const auto& [typed, hertz, mode, band] :
         {std::array{"7.0251", "7025100", "CW", "40"}, std::array{"14.2", "14200000", "USB", "20"},
          std::array{"3.8", "3800000", "LSB", "80"}, std::array{"1.85", "1850000", "LSB", "160"}}) {
        Tune(typed);
        ASSERT_TRUE(Becomes(hertz + std::string{"\n"}, [this] { return server.Ask("f"); })) << typed;
        EXPECT_TRUE(server.Ask("m").starts_with(mode)) << typed;
        ASSERT_TRUE(Shows("Form1.Label30", band));
    }
    EXPECT_EQ(program->LastTurn(), R"({"ready":"idle","form":"frmRigTune","focus":"txtFreq"})");
}

TEST_F(RadioBehindRigctld, ServerThatIsKilledInMidPollIsFoundAgain) {
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
    EXPECT_EQ(server.Ask("f"), "3850000\n") << "what was asked for is not brought to it";
    EXPECT_EQ(program->LastTurn(), R"({"ready":"idle","form":"frmRigTune","focus":"txtFreq"})");
}

TEST_F(RadioBehindRigctld, NextStartFindsTheServerByItself) {
    TurnTo(21'300'000, "USB");
    PollFromTheMainForm();
    EXPECT_TRUE(Shows("Label30", "15"));
    Do("close Form1");
    EXPECT_EQ(program->Wait(), 0);
    TurnTo(7'025'000, "CW");
    Start();
    EXPECT_TRUE(Shows("Label30", "40"));
}

}  // namespace
}  // namespace tallyhut
