#include "console/console_pump.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>

#include "platform/sim/clipboard.h"
#include "platform/sim/dialogs.h"
#include "tests/platform/pipe.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

struct PumpForm : Form {
    explicit PumpForm(Desk& owner) : Form{owner, "Form", "Form", {.dialog = false}} {}

    TextBox field{*this, "field", {.tabIndex = 1}};
    Timer timer{*this, "timer", 0, true};
};

/// A desk on the console's pump. The driver's lines are single characters, typed; "q" ends the loop. The machine's
/// clock stands still where a test does not move it.
template <bool isVirtual>
struct PumpFixture : testing::Test {
    Pipe driver;
    Pipe cable;
    sim::Clock clock;
    std::ostringstream printed;
    JsonOutput output{printed};
    PolledDescriptors descriptors;
    LineSource lines{descriptors, driver.ReadEnd()};
    ConsolePump pump{descriptors, lines, output, isVirtual ? &clock : nullptr, clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    PumpForm form{desk};
    bool ended = false;
    std::string ran;

    PumpFixture() {
        pump.describeTurn = [] { return Json{{"ready", "idle"}}; };
        pump.runLine = [this](const std::string& line, bool /*putAt*/) {
            ended = ended || line == "q";
            desk.PostKey(KeyForCharacter(static_cast<unsigned char>(line.at(0))));
        };
        pump.endOfInput = [this] { ended = true; };
        pump.heldUntil = [this] { return desk.HeldUntil(); };
        form.Show();
        form.field.KeyPress = [this](int& KeyAscii) { ran += static_cast<char>(KeyAscii); };
        form.timer.Elapsed = [this] { ran += 'T'; };
        desk.RunPending();
    }
    void RunToTheEnd() {
        desk.RunUntil([this] { return ended; });
        desk.RunPending();
    }
    /// How often the driver has had its turn.
    int Turns() const {
        const std::string text = printed.str();
        return static_cast<int>(std::ranges::count(text, '\n'));
    }
};

using VirtualPumpTest = PumpFixture<true>;
using MachinePumpTest = PumpFixture<false>;

TEST_F(MachinePumpTest, LinesComeInOrderUpToTheEndOfInput) {
    driver.Write("a\nb\r");
    driver.Write("\nc");
    driver.CloseWriteEnd();
    RunToTheEnd();
    EXPECT_EQ(ran, "abc");
    EXPECT_EQ(Turns(), 4) << "one before each line, and one that the end answers";
}

TEST_F(MachinePumpTest, CableIsServedWhileALineIsAwaited) {
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              ran += cable.Read();
                              driver.Write("q\n");  // the driver answers what it saw, so nothing hangs on a clock
                          }};
    cable.Write("FA;");
    RunToTheEnd();
    EXPECT_EQ(ran, "FA;q");
    EXPECT_EQ(Turns(), 1);
}

TEST_F(VirtualPumpTest, WhatHasArrivedIsServedBeforeTheDriversTurn) {
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              EXPECT_EQ(Turns(), 0);
                              ran += cable.Read(1);
                          }};
    cable.Write("FA14;");
    driver.Write("q\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "FA14;q");
}

TEST_F(VirtualPumpTest, NothingRunsWhileALineIsAwaited) {
    const IoSource source{desk, cable.ReadEnd(), [&] { ran += cable.Read(); }};
    form.timer.SetInterval(10);
    output.virtualNow = nullptr;
    pump.describeTurn = [&] {
        cable.Write("x");  // too late for this turn
        driver.Write(ran.empty() ? "a\n" : "q\n");
        return Json{{"ready", "idle"}};
    };
    RunToTheEnd();
    EXPECT_EQ(ran, "xaxq") << "each in the round behind the line";
    EXPECT_EQ(clock.TickMs(), 0U);
}

TEST_F(VirtualPumpTest, FloodLeavesTheDriverItsTurn) {
    int reads = 0;
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              ++reads;
                              cable.Read(1);
                              cable.Write("x");  // there is always more
                          }};
    cable.Write("x");
    driver.Write("a\nb\nq\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "abq");
    EXPECT_GT(reads, 1000);
    EXPECT_LT(reads, 10'000);
}

TEST_F(VirtualPumpTest, SourceThatSignalsItselfForEverLeavesTheDriverItsTurn) {
    IoSource endless{desk, [&] { endless.Signal(); }};
    endless.Signal();
    driver.Write("a\nq\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "aq");
}

TEST_F(VirtualPumpTest, SourceThatSignalsItselfIsDoneBeforeTheDriversTurn) {
    int left = 500;
    IoSource pieces{desk, [&] {
                        EXPECT_EQ(Turns(), 0);
                        if (--left > 0) {
                            pieces.Signal();
                        }
                    }};
    pieces.Signal();
    driver.Write("q\n");
    RunToTheEnd();
    EXPECT_EQ(left, 0);
}

TEST_F(VirtualPumpTest, HeldKeyComesAlthoughASourceSignalsItselfForEver) {
    IoSource endless{desk, [&] { endless.Signal(); }};
    endless.Signal();
    form.field.KeyGate = [](const Key& /*key*/) { return std::optional<Tick>{3000}; };
    driver.Write("a\nq\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "aq");
    EXPECT_EQ(clock.TickMs(), 3000U);
}

TEST_F(MachinePumpTest, SourceThatSignalsItselfForEverLeavesTheDriverItsTurn) {
    IoSource endless{desk, [&] { endless.Signal(); }};
    endless.Signal();
    driver.Write("a\nq\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "aq");
}

TEST_F(MachinePumpTest, FloodOnACableDelaysNoKeyBeyondOneRound) {
    constexpr int kArrivals = 50'000;
    std::string sent;
    std::string received;
    std::optional<std::size_t> typedAt;
    std::size_t latest = 0;
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              received += cable.Read(1);
                              if (received.size() % 100 == 0) {
                                  typedAt = received.size();
                                  driver.Write("a\n");
                              }
                              if (sent.size() < kArrivals) {
                                  sent += static_cast<char>('a' + sent.size() % 26);
                                  cable.Write(sent.substr(sent.size() - 1));
                              }
                          }};
    form.field.KeyPress = [&](int& KeyAscii) {
        KeyAscii = 0;
        latest = std::max(latest, received.size() - typedAt.value());
        typedAt.reset();
        ran += '.';
    };
    sent = "a";
    cable.Write("a");
    desk.RunUntil([&] { return received.size() == kArrivals && !typedAt; });
    EXPECT_EQ(received, sent);
    EXPECT_EQ(ran.size(), kArrivals / 100U);
    EXPECT_LE(latest, 1U);
}

TEST_F(MachinePumpTest, SourceMayEndAndBeMadeInAHandler) {
    std::unique_ptr<IoSource> source;
    const std::function<void()> readOne = [&] {
        ran += cable.Read(1);
        source.reset();
        if (ran.size() < 3) {
            source = std::make_unique<IoSource>(desk, cable.ReadEnd(), readOne);
        } else {
            driver.Write("q\n");
        }
    };
    source = std::make_unique<IoSource>(desk, cable.ReadEnd(), readOne);
    cable.Write("abcd");
    RunToTheEnd();
    EXPECT_EQ(ran, "abcq");
}

TEST_F(MachinePumpTest, HangUpSignalsUntilTheSourceIsGone) {
    std::unique_ptr<IoSource> source;
    source = std::make_unique<IoSource>(desk, cable.ReadEnd(), [&] {
        ran += 'h';
        EXPECT_EQ(cable.Read(), "");
        if (ran == "hh") {
            source.reset();
            driver.Write("q\n");
        }
    });
    cable.CloseWriteEnd();
    RunToTheEnd();
    EXPECT_EQ(ran, "hhq");
}

// Settling: it takes its time from the machine's clock, which here a handler moves.

TEST_F(MachinePumpTest, SettleIsOverWhenItsTimeHasPassedWhateverTheProgramDoes) {
    int rounds = 0;
    IoSource slow{desk, [&] {
                      ++rounds;
                      clock.Advance(250);
                      slow.Signal();
                  }};
    slow.Signal();
    pump.Settle(300, desk);
    EXPECT_EQ(rounds, 2);
}

TEST_F(MachinePumpTest, SettleServesDevicesAndTakesNoLine) {
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              ran += cable.Read(1);
                              clock.Advance(100);
                          }};
    driver.Write("a\nq\n");
    cable.Write("FA;");
    pump.Settle(300, desk);
    EXPECT_EQ(ran, "FA;");
    RunToTheEnd();
    EXPECT_EQ(ran, "FA;aq");
}

TEST_F(MachinePumpTest, SettleEndsWithTheInput) {
    driver.CloseWriteEnd();
    pump.Settle(600'000, desk);
    EXPECT_TRUE(lines.HasEnded());
}

TEST_F(MachinePumpTest, SettleEndsWithASignalWhateverLinesWait) {
    driver.Write("a\nb\nc");
    raise(SIGTERM);
    pump.Settle(600'000, desk);
    EXPECT_TRUE(lines.HasEnded());
    driver.Write("d\n");
    RunToTheEnd();
    EXPECT_EQ(ran, "");
}

TEST_F(MachinePumpTest, SettleLastsWhileLinesWaitBeforeTheEndOfInput) {
    driver.Write("a\n");
    driver.CloseWriteEnd();
    IoSource passing{desk, [&] {
                         clock.Advance(100);
                         passing.Signal();
                     }};
    passing.Signal();
    pump.Settle(300, desk);
    EXPECT_GE(clock.TickMs(), 300U);
    EXPECT_FALSE(lines.HasEnded());
}

}  // namespace
}  // namespace tallyhut
