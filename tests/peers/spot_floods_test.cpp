// More than any source of spots sends, while the operator types: the whole program in real time.

#include <functional>
#include <future>
#include <random>

#include "tests/peers/cluster_node.h"
#include "tests/peers/spots_program.h"
#include "tests/platform/loopback_server.h"
#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr std::size_t kMegabyte = 1'000'000;
constexpr std::size_t kMostGrowth = 8'000;  ///< kilobytes, whatever came in

std::string RandomBytes(std::size_t count) {
    std::mt19937 random{1};
    std::string bytes(count, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

struct SpotFlood : SpotsProgram {
    LoopbackServer server;

    void ConnectCluster(bool logsIn = false) {
        Start();
        ChooseSource(kCluster);
        if (logsIn) {
            Do("click chkLogin");
        }
        Do(R"(set txtTelnetHost "127.0.0.1")");
        Do("set txtTelnetPort \"" + std::to_string(server.Port()) + '"');
        Do("click cmdDone");
        server.Accept();
    }
    void ConnectEngine() {
        Start({"--agw", "127.0.0.1:" + std::to_string(server.Port())});
        ChooseSource(kEngine);
        Do("click cmdDone");
        server.Accept();
        EXPECT_TRUE(TerminalTells("** Successfully connected to AGW Packet Engine **"));
    }
    /// Does something aside and logs contacts until it is done: every key counts, and no memory is kept.
    void LogContactsDuring(const std::function<void()>& flood) {
        EXPECT_TRUE(LogsAContact());
        const std::size_t before = Resident();
        auto flooding = std::async(std::launch::async, flood);
        do {
            EXPECT_TRUE(LogsAContact());
        } while (flooding.wait_for(0s) != std::future_status::ready && !HasFailure());
        flooding.get();
        EXPECT_TRUE(LogsAContact());
        EXPECT_LT(Resident(), before + kMostGrowth);
    }
    std::string Newest() const { return Get("$SpotCall(49)"); }
};

TEST_F(SpotFlood, RandomBytesOfAClusterAreShownAndPostsBehindThemAreTaken) {
    ConnectCluster();
    LogContactsDuring([this] { server.Write(RandomBytes(10 * kMegabyte)); });
    server.Write("\r\nlast of all");
    ASSERT_TRUE(TerminalTells("last of all"));
    server.Write("DX de K3LR:      14025.0  W1XX         CQ SS                          2101Z\r\n");
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
    const std::string terminal = Terminal();
    EXPECT_LE(terminal.size(), 20'000U) << "in UTF-8";
    EXPECT_EQ(terminal.find_first_of(std::string("\0\x07\x1B\x7F", 4)), std::string::npos);
}

TEST_F(SpotFlood, LineOfAMegabyteIsOneLine) {
    ConnectCluster();
    LogContactsDuring([this] { server.Write("DX de " + std::string(kMegabyte, 'x') + "\r\n"); });
    server.Write("last of all");
    ASSERT_TRUE(TerminalTells("last of all"));
    EXPECT_EQ(Newest(), "");
}

TEST_F(SpotFlood, RandomBytesAndShortLinesToOneWhoLogsInCostNoKey) {
    ConnectCluster(true);
    LogContactsDuring([this] {
        server.Write(RandomBytes(10 * kMegabyte));
        std::string shortLines;
        for (std::size_t i = 0; i < kMegabyte / 10; ++i) {
            shortLines += "DX\n";
        }
        server.Write(shortLines);
    });
    server.Write(std::string(600, 'x') + "\r\nlast of all\r\n");
    ASSERT_TRUE(TerminalTells("last of all"));
    server.Write("DX de K3LR:      14025.0  W1XX         CQ SS                          2101Z\r\n");
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
}

TEST_F(SpotFlood, RandomBytesOfAnEngineAreNoFrames) {
    ConnectEngine();
    LogContactsDuring([this] { server.Write(RandomBytes(10 * kMegabyte)); });
    EXPECT_EQ(Newest(), "");
}

TEST_F(SpotFlood, PostsAsFastAsTheWorldSendsThemLoseNoKey) {
    constexpr int kPostsATick = 50;  // 5,000 a second
    constexpr int kTicks = 300;
    ConnectCluster();
    Do("menu mnuDXSpotsColor");
    Do("key Ctrl+B");
    Do("activate Form1");
    LogContactsDuring([this] {
        int count = 0;
        steady_clock::time_point next = steady_clock::now();
        for (int tick = 0; tick < kTicks; ++tick) {
            for (int i = 0; i < kPostsATick; ++i, ++count) {
                const std::string call = "W" + std::to_string(count % 10) + std::to_string(count) + "XX";
                server.Write(ClusterNode{}.Posted("K3LR", 14'000 + count % 350, call, count % 2 == 0 ? "SS CT" : ""));
            }
            std::this_thread::sleep_until(next += 10ms);
        }
    });
    server.Write("last of all");
    ASSERT_TRUE(TerminalTells("last of all"));
    EXPECT_NE(Get("$SpotCall(0)"), "") << "the table is full";
}

TEST_F(SpotFlood, RandomBytesOfATncAreLinesAndTakenInParts) {
    const PseudoTerminal tnc;
    Start({"--port", "1=" + tnc.Path()});
    ChooseSource(kTnc);
    Do("click cmdDone");
    LogContactsDuring([&tnc] {
        std::string flood = RandomBytes(300'000);  // the wire takes no more between two polls
        while (!flood.empty()) {
            flood.erase(0, tnc.Send(flood));
            std::this_thread::sleep_for(1ms);
        }
    });
    std::string rest = "\r\nDX de K3LR:      14025.0  W1XX         CQ SS                          2101Z\r\n";
    EXPECT_TRUE(Becomes("", [&] {
        rest.erase(0, tnc.Send(rest));
        return rest;
    }));
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
}

}  // namespace
}  // namespace tallyhut
