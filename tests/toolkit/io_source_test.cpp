#include "toolkit/io_source.h"

#include <map>
#include <optional>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

constexpr int kCable = 7;

struct IoSourceTest : EntryFormTest {
    Timer timer{form, "timer", 0, true};

    IoSourceTest() {
        timer.Elapsed = [this] { Note("timer"); };
        form.one.KeyPress = [this](int& KeyAscii) { Note(std::string{"key "} + static_cast<char>(KeyAscii)); };
    }
};

TEST_F(IoSourceTest, RoundIsEachSourceOnceThenWhatIsDueThenOneKey) {
    IoSource first{desk, [&] {
                       Note("first");
                       first.Signal();
                   }};
    IoSource second{desk, [&] {
                        Note("second");
                        second.Signal();
                    }};
    timer.SetInterval(10);
    clock.Advance(10);
    PostText("ab");
    first.Signal();
    second.Signal();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(),
              "first, second, timer, key a, first, second, key b, first, second, "
              "first, second");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "first, second, first, second");
}

TEST_F(IoSourceTest, SourceThatSignalsItselfForEverHasOneTurnInTimersAndIo) {
    IoSource endless{desk, [&] {
                         Note("endless");
                         endless.Signal();
                     }};
    IoSource other{desk, [&] { Note("other"); }};
    endless.Signal();
    other.Signal();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "endless, other");
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "endless");
}

TEST_F(IoSourceTest, SourceThatSignalsItselfForEverLetsTheLoopsGoOn) {
    IoSource endless{desk, [&] {
                         clock.Advance(1);
                         endless.Signal();
                     }};
    timer.SetInterval(50);
    endless.Signal();
    PostText("a");
    desk.RunUntil([&] { return events.find("timer") != std::string::npos; });
    EXPECT_EQ(TakeEvents(), "key a, timer");
    desk.RunDialog([&] { return events.find("timer") != std::string::npos; });
    EXPECT_EQ(TakeEvents(), "timer");
    EXPECT_TRUE(desk.SourceWaits());
}

TEST_F(IoSourceTest, LoopDoesNotWaitBeforeWhatHasSignalledAgainHasRun) {
    int left = 100;
    IoSource pieces{desk, [&] {
                        if (--left > 0) {
                            pieces.Signal();
                        }
                    }};
    timer.SetInterval(1000);
    pieces.Signal();
    desk.RunUntil([&] { return left == 0; });
    EXPECT_EQ(clock.TickMs(), 0U);
    EXPECT_FALSE(desk.SourceWaits());
}

TEST_F(IoSourceTest, SourcesThatSignalEachOtherForEverKeepNobodyInside) {
    std::optional<IoSource> here;
    std::optional<IoSource> there;
    const auto tellAndYield = [this](std::optional<IoSource>& other, const char* name) {
        return [this, &other, name] {
            Note(name);
            other->Signal();
            desk.RunPending();
            other->Signal();
        };
    };
    here.emplace(desk, tellAndYield(there, "here"));
    there.emplace(desk, tellAndYield(here, "there"));
    here->Signal();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents().substr(0, 11), "here, there");
    PostText("a");
    desk.RunPending();
    EXPECT_NE(TakeEvents().find("key a"), std::string::npos);
}

TEST_F(IoSourceTest, TwoMillionArrivalsLoseNoneAndDelayNoKeyBeyondOneRound) {
    constexpr int kArrivals = 2'000'000;
    constexpr int kArrivalsAKey = 1'000;
    int arrived = 0;
    std::optional<int> typedAt;
    int keys = 0;
    int latest = 0;
    IoSource flood{desk, [&] {
                       ++arrived;
                       if (arrived % kArrivalsAKey == 0) {
                           EXPECT_FALSE(typedAt);
                           typedAt = arrived;
                           PostText("a");
                       }
                       if (arrived < kArrivals) {
                           flood.Signal();
                       }
                   }};
    form.one.KeyPress = [&](int& KeyAscii) {
        KeyAscii = 0;
        latest = std::max(latest, arrived - typedAt.value());
        typedAt.reset();
        ++keys;
    };
    flood.Signal();
    desk.RunUntil([&] { return arrived == kArrivals && !typedAt; });
    EXPECT_EQ(keys, kArrivals / kArrivalsAKey);
    EXPECT_EQ(latest, 0);
}

TEST_F(IoSourceTest, SourceMayEndInItsOwnHandler) {
    const std::string closure = "a text that is too long to be kept in place";
    std::unique_ptr<IoSource> source;
    source = std::make_unique<IoSource>(desk, [this, &source, closure] {
        source->Signal();
        source.reset();
        desk.RunPending();
        Note(closure);
    });
    source->Signal();
    desk.RunPending();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), closure);
    EXPECT_FALSE(desk.SourceWaits());
}

TEST_F(IoSourceTest, SourceThatTookItsPlaceInItsHandlerRunsLater) {
    std::unique_ptr<IoSource> source;
    int made = 0;
    const std::function<void()> replace = [&] {
        Note("run " + std::to_string(made));
        if (++made < 3) {
            source.reset();
            source = std::make_unique<IoSource>(desk, replace);
            source->Signal();
            desk.RunTimersAndIo();  // another source, wherever it lies
        }
    };
    source = std::make_unique<IoSource>(desk, replace);
    source->Signal();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "run 0, run 1, run 2");
}

TEST_F(IoSourceTest, HandlerMayEndEveryOtherSource) {
    std::vector<std::unique_ptr<IoSource>> sources;
    for (int i = 0; i < 4; ++i) {
        sources.push_back(std::make_unique<IoSource>(desk, [this, &sources, i] {
            Note(std::to_string(i));
            for (int other = 0; other < 4; ++other) {
                if (other != i) {
                    sources.at(static_cast<std::size_t>(other)).reset();
                }
            }
        }));
    }
    sources[3]->Signal();
    sources[2]->Signal();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "2");
}

TEST_F(IoSourceTest, MakersOfSourcesDoNotKeepARoundGoing) {
    std::vector<std::unique_ptr<IoSource>> sources;
    const std::function<void()> makeAnother = [&] {
        Note("made");
        sources.push_back(std::make_unique<IoSource>(desk, makeAnother));
        sources.back()->Signal();
    };
    makeAnother();
    TakeEvents();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "made");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "made, made");
}

TEST_F(IoSourceTest, SourceWhoseHandlerRunsDoesNotKeepItsModalLoopAwake) {
    IoSource asking{desk, [&] {
                        asking.Signal();
                        bool answered = false;
                        pump.OnWait([&] { answered = true; });
                        desk.RunDialog([&] { return answered; });
                        Note("answered");
                        asking.Signal();
                    }};
    asking.Signal();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "answered");
    EXPECT_TRUE(desk.SourceWaits());
}

// Descriptors.

struct DescriptorSourceTest : IoSourceTest {
    std::map<int, std::string> waiting;  ///< by descriptor

    void Arrive(int descriptor, const std::string& bytes) {
        waiting[descriptor] += bytes;
        pump.readable.insert(descriptor);
    }
    /// At most so many bytes.
    std::string Read(int descriptor, std::size_t most = std::string::npos) {
        std::string& bytes = waiting[descriptor];
        std::string read = bytes.substr(0, most);
        bytes.erase(0, read.size());
        if (bytes.empty()) {
            pump.readable.erase(descriptor);
        }
        return read;
    }
};

TEST_F(DescriptorSourceTest, WhatArrivesSignalsTheSource) {
    const IoSource cable{desk, kCable, [&] { Note(Read(kCable)); }};
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
    Arrive(kCable, "FA;");
    desk.RunPending();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "FA;");
    Arrive(kCable, "MD;");
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "MD;");
}

TEST_F(DescriptorSourceTest, WhatArrivesEndsAWait) {
    bool closed = false;
    const IoSource cable{desk, kCable, [&] {
                             Note(Read(kCable));
                             closed = true;
                         }};
    timer.SetInterval(1000);
    pump.OnWait([&] { Arrive(kCable, "FA;"); });
    desk.RunUntil([&] { return closed; });
    EXPECT_EQ(TakeEvents(), "FA;");
    EXPECT_EQ(clock.TickMs(), 0U);
}

TEST_F(DescriptorSourceTest, WhatTheHandlerLeavesSignalsAnew) {
    const IoSource cable{desk, kCable, [&] { Note(Read(kCable, 2)); }};
    Arrive(kCable, "abcde");
    PostText("x");
    desk.RunUntil([&] { return waiting[kCable].empty(); });
    EXPECT_EQ(TakeEvents(), "ab, key x, cd, e");
}

TEST_F(DescriptorSourceTest, WhatNobodyReadsYetKeepsNoLoopAwake) {
    const IoSource cable{desk, kCable, [&] {
                             bool answered = false;
                             pump.OnWait([&] { clock.Advance(1); });
                             pump.OnWait([&] { answered = true; });
                             desk.RunDialog([&] { return answered; });
                             EXPECT_FALSE(pump.HasScripts());
                             timer.SetInterval(1000);
                             desk.RunDialog([&] { return clock.TickMs() > 1; });
                             EXPECT_EQ(clock.TickMs(), 1001U);
                             Note(Read(kCable));
                         }};
    Arrive(kCable, "FA;");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "FA;");
}

TEST_F(DescriptorSourceTest, NothingKeepsTheBoxOfAFatalFailureAwake) {
    const IoSource cable{desk, kCable, [&] { Note(Read(kCable)); }};
    desk.onFatal = [&](const std::exception& /*failure*/) {
        Arrive(kCable, "FA;");
        EXPECT_THROW(desk.RunDialog([] { return false; }), sim::NothingToWaitFor);
        Note("told");
    };
    form.go.Click = [] { throw PlatformError{"disk full"}; };
    EXPECT_THROW(Click(form.go), ProgramEnd);
    EXPECT_EQ(TakeEvents(), "told");
}

TEST_F(DescriptorSourceTest, SourceMayBeMadeInAHandler) {
    std::unique_ptr<IoSource> call;
    const IoSource listening{desk, kCable, [&] {
                                 Read(kCable);
                                 call = std::make_unique<IoSource>(desk, kCable + 1, [&] { Note(Read(kCable + 1)); });
                             }};
    Arrive(kCable + 1, "hello");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
    Arrive(kCable, "ring");
    desk.RunPending();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "hello");
}

TEST_F(DescriptorSourceTest, SourceMayEndAndBeMadeAnewInItsOwnHandler) {
    std::unique_ptr<IoSource> cable;
    const std::function<void()> hangUp = [&] {
        Note(Read(kCable, 1));
        cable.reset();
        cable = std::make_unique<IoSource>(desk, kCable, hangUp);
    };
    cable = std::make_unique<IoSource>(desk, kCable, hangUp);
    Arrive(kCable, "abc");
    desk.RunUntil([&] { return waiting[kCable].empty(); });
    EXPECT_EQ(TakeEvents(), "a, b, c");
    Arrive(kCable, "d");
    cable.reset();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

}  // namespace
}  // namespace tallyhut
