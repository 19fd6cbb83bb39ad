#include "platform/real/termination_signals.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <csignal>
#include <thread>

#include "platform/real/polled_descriptors.h"

namespace tallyhut {
namespace {

int asked = 0;

struct TerminationSignalsTest : testing::Test {
    PolledDescriptors descriptors;
    TerminationSignals signals;
    int told = 0;
    std::unique_ptr<DescriptorWatch> watch = descriptors.Watch(signals.Number(), [this] { ++told; });

    bool HasCome() {
        watch->Rearm();
        return descriptors.Look(0);
    }
};

TEST_F(TerminationSignalsTest, EachOfThemIsSomethingToReadUntilItIsCleared) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        EXPECT_FALSE(HasCome());
        raise(number);
        raise(number);
        EXPECT_TRUE(HasCome());
        EXPECT_TRUE(HasCome());
        signals.Clear();
    }
    EXPECT_FALSE(HasCome());
}

TEST_F(TerminationSignalsTest, ThreadThatStartsLaterMayGetTheSignal) {
    std::thread library{[] { pthread_kill(pthread_self(), SIGTERM); }};
    library.join();
    EXPECT_TRUE(HasCome());
}

TEST_F(TerminationSignalsTest, NothingIsBlocked) {
    sigset_t blocked{};
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(sigismember(&blocked, SIGTERM), 0);
}

TEST_F(TerminationSignalsTest, MoreThanThePipeHoldsDoNotHang) {
    for (int i = 0; i < 100'000; ++i) {
        raise(SIGHUP);
    }
    EXPECT_TRUE(HasCome());
    signals.Clear();
    EXPECT_FALSE(HasCome());
}

TEST(TerminationSignalsAfterwards, SignalsDoWhatTheyDidBefore) {
    std::signal(SIGHUP, [](int /*number*/) { ++asked; });
    { const TerminationSignals signals; }
    raise(SIGHUP);
    EXPECT_EQ(asked, 1);
    std::signal(SIGHUP, SIG_DFL);
}

}  // namespace
}  // namespace tallyhut
