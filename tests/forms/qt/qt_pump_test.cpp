#include "forms/qt/qt_pump.h"

#include <gtest/gtest.h>

#include <QTimer>

#include "platform/real/system_clock.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "tests/platform/pipe.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

struct PumpForm : Form {
    explicit PumpForm(Desk& owner) : Form{owner, "Form", "Form", {.dialog = false}} {}

    TextBox field{*this, "field", {.tabIndex = 1}};
};

/// A desk on the window's pump, with a cable and no window.
struct QtPumpTest : testing::Test {
    Pipe cable;
    SystemClock clock;
    QtPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    PumpForm form{desk};
    std::string ran;

    QtPumpTest() {
        form.Show();
        form.field.KeyPress = [this](int& KeyAscii) { ran += static_cast<char>(KeyAscii); };
        desk.RunPending();
    }
    void PostKey(char character) { desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character))); }
};

TEST_F(QtPumpTest, WhatArrivesIsServedWhenEventsRun) {
    const IoSource source{desk, cable.ReadEnd(), [&] { ran += cable.Read(); }};
    desk.RunPending();
    EXPECT_EQ(ran, "");
    cable.Write("FA;");
    desk.RunPending();
    EXPECT_EQ(ran, "FA;");
    cable.Write("MD;");
    desk.RunTimersAndIo();
    desk.RunPending();
    EXPECT_EQ(ran, "FA;MD;");
}

TEST_F(QtPumpTest, WhatArrivesEndsAWait) {
    const IoSource source{desk, cable.ReadEnd(), [&] { ran += cable.Read(); }};
    desk.RunPending();
    QTimer::singleShot(0, [&] { cable.Write("FA;"); });  // runs within the wait
    desk.RunUntil([&] { return !ran.empty(); });
    EXPECT_EQ(ran, "FA;");
    QTimer::singleShot(0, [&] { cable.Write("MD;"); });
    desk.RunDialog([&] { return ran.size() > 3; });
    EXPECT_EQ(ran, "FA;MD;");
}

TEST_F(QtPumpTest, FloodDelaysNoKeyBeyondOneRound) {
    constexpr std::size_t kArrivals = 20'000;
    std::string sent;
    std::string received;
    std::optional<std::size_t> typedAt;
    std::size_t latest = 0;
    const auto send = [&] {
        sent += static_cast<char>('a' + sent.size() % 26);
        cable.Write(sent.substr(sent.size() - 1));
    };
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              received += cable.Read(1);
                              if (received.size() % 100 == 0) {
                                  typedAt = received.size();
                                  PostKey('a');
                              }
                              if (sent.size() < kArrivals) {
                                  send();
                              }
                          }};
    form.field.KeyPress = [&](int& KeyAscii) {
        KeyAscii = 0;
        latest = std::max(latest, received.size() - typedAt.value());
        typedAt.reset();
        ran += '.';
    };
    send();
    desk.RunUntil([&] { return received.size() == kArrivals && !typedAt; });
    EXPECT_EQ(received, sent);
    EXPECT_EQ(ran.size(), kArrivals / 100);
    EXPECT_EQ(latest, 0U);
}

TEST_F(QtPumpTest, SourceThatSignalsItselfForEverLetsTheDesktopsEventsIn) {
    IoSource endless{desk, [&] { endless.Signal(); }};
    endless.Signal();
    QTimer::singleShot(0, [&] { PostKey('q'); });
    desk.RunUntil([&] { return ran == "q"; });
    EXPECT_EQ(ran, "q");
}

TEST_F(QtPumpTest, WhatNobodyReadsYetKeepsNoLoopAwake) {
    int waits = 0;
    bool answered = false;
    Alarm answer{desk, [&] { answered = true; }};
    const IoSource source{desk, cable.ReadEnd(), [&] {
                              answer.StartOnce(50);
                              desk.RunDialog([&] {
                                  ++waits;
                                  return answered;
                              });
                              ran += cable.Read();
                          }};
    cable.Write("FA;");
    desk.RunPending();
    EXPECT_EQ(ran, "FA;");
    EXPECT_LT(waits, 20);
    cable.Write("MD;");
    desk.RunPending();
    EXPECT_EQ(ran, "FA;MD;");
}

TEST_F(QtPumpTest, SourceMayEndAndBeMadeInAHandler) {
    std::unique_ptr<IoSource> source;
    const std::function<void()> readOne = [&] {
        ran += cable.Read(1);
        source.reset();
        if (ran.size() < 3) {
            source = std::make_unique<IoSource>(desk, cable.ReadEnd(), readOne);
        }
    };
    source = std::make_unique<IoSource>(desk, cable.ReadEnd(), readOne);
    cable.Write("abcd");
    desk.RunUntil([&] { return source == nullptr; });
    desk.RunPending();
    EXPECT_EQ(ran, "abc");
    EXPECT_EQ(cable.Read(), "d");
}

TEST_F(QtPumpTest, HangUpSignalsUntilTheSourceIsGone) {
    std::unique_ptr<IoSource> source;
    source = std::make_unique<IoSource>(desk, cable.ReadEnd(), [&] {
        ran += 'h';
        EXPECT_EQ(cable.Read(), "");
        if (ran == "hh") {
            source.reset();
        }
    });
    cable.CloseWriteEnd();
    desk.RunUntil([&] { return source == nullptr; });
    EXPECT_EQ(ran, "hh");
}

TEST_F(QtPumpTest, AlarmEndsAWait) {
    Alarm alarm{desk, [&] { ran += 'A'; }};
    alarm.StartOnce(1);
    desk.RunUntil([&] { return !ran.empty(); });
    EXPECT_EQ(ran, "A");
}

/// On a clock that stands still unless it is told to go on.
struct QtPumpFrames : testing::Test {
    Pipe cable;
    sim::Clock clock{DateTime{}};
    QtPump pump{clock};
    int shown = 0;
    std::unique_ptr<DescriptorWatch> watch = pump.Watch(cable.ReadEnd(), [this] { cable.Read(); });

    QtPumpFrames() {
        pump.onShow = [this] { ++shown; };
    }
    /// Shows what was there before, and takes what arrives.
    void Arrive() {
        watch->Rearm();
        cable.Write("x");
        pump.Collect();
    }
};

TEST_F(QtPumpFrames, WhatTheProgramDoesByItselfIsShownAtOnce) {
    pump.Collect();
    pump.Collect();
    EXPECT_EQ(shown, 2);
}

TEST_F(QtPumpFrames, WhatAHandlerChangesInStepsIsShownWithTheLastOfThem) {
    pump.WaitUntil(clock.TickMs());
    const int before = shown;
    pump.CollectBetweenSteps();
    pump.CollectBetweenSteps();
    EXPECT_EQ(shown, before);
    pump.WaitUntil(clock.TickMs());
    EXPECT_EQ(shown, before + 1);
}

TEST_F(QtPumpFrames, StepsThatTakeLongAreShownOnceAFrame) {
    pump.WaitUntil(clock.TickMs());
    const int before = shown;
    clock.Advance(QtPump::kFrame);
    pump.CollectBetweenSteps();
    pump.CollectBetweenSteps();
    EXPECT_EQ(shown, before + 1);
    clock.Advance(QtPump::kFrame);
    pump.CollectBetweenSteps();
    EXPECT_EQ(shown, before + 2);
}

TEST_F(QtPumpFrames, WhatComesOverAWireIsShownOnceAFrame) {
    Arrive();
    const int before = shown;
    for (int i = 0; i < 100; ++i) {
        Arrive();
    }
    EXPECT_EQ(shown, before);
    clock.Advance(QtPump::kFrame);
    pump.Collect();
    EXPECT_EQ(shown, before + 1);
}

TEST_F(QtPumpFrames, KeyAmongItIsShownAtOnce) {
    Arrive();
    const int before = shown;
    pump.NoteArrival();
    pump.Collect();
    EXPECT_EQ(shown, before + 1);
}

}  // namespace
}  // namespace tallyhut
