#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/parallel_port.h"

namespace tallyhut {
namespace {

using Written = sim::ParallelPorts::Written;

struct SimParallelPorts : testing::Test {
    sim::Clock clock;
    sim::ParallelPorts ports{clock};
};

TEST_F(SimParallelPorts, EveryAddressTakesBytesWhichAreKeptWithTheirMoments) {
    ports.Out(890, kParallelKeyDown);
    clock.SpinUntil(92'307);
    ports.Out(890, kParallelKeyUp);
    ports.Out(634, kParallelKeyUp);
    EXPECT_EQ(ports.written, (std::vector<Written>{{0, 890, 3}, {92'307, 890, 2}, {92'307, 634, 2}}));
}

TEST_F(SimParallelPorts, BytesAreToldAsTheyAreWritten) {
    std::string told;
    ports.onOut = [&](int address, unsigned char value) {
        told += std::to_string(address) + ' ' + std::to_string(value) + '\n';
    };
    ports.Out(890, kParallelKeyDown);
    ports.Out(890, kParallelKeyDown);
    EXPECT_EQ(told, "890 3\n890 3\n");
}

TEST_F(SimParallelPorts, RecordKeepsTheLatest) {
    constexpr std::size_t kKept = sim::ParallelPorts::kKept;
    for (std::size_t count = 0; count < 5 * kKept; ++count) {
        ports.Out(static_cast<int>(count), 0);
        ASSERT_LE(ports.written.size(), 2 * kKept);
    }
    EXPECT_GE(ports.written.size(), kKept);
    EXPECT_EQ(ports.written.back().address, static_cast<int>(5 * kKept) - 1);
}

TEST_F(SimParallelPorts, MeaningsAreAsArranged) {
    ports.meanings[0x278] = "no right";
    EXPECT_EQ(ports.Meaning(0x378), "simulated");
    EXPECT_EQ(ports.Meaning(0x278), "no right");
}

}  // namespace
}  // namespace tallyhut
