#include "tests/fuzz/packet_inputs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "values/hex.h"

namespace tallyhut {
namespace {

std::string Frame(std::mt19937& random) {
    constexpr std::string_view kKinds = "CdDUISTXK?";
    std::string frame(36, '\0');
    frame[4] = kKinds[random() % kKinds.size()];
    frame.replace(8, 5, random() % 2 == 0 ? "Q7ZZQ" : "W1AW\0");
    frame.replace(18, 5, random() % 2 == 0 ? "Q7ZZQ" : "W1AW\0");
    std::string data(random() % 200, '\0');
    std::ranges::generate(data, [&random] { return "DX e\r\n\0W"[random() % 8]; });
    frame[28] = static_cast<char>(data.size());
    return frame + data;
}

TEST(PacketInputs, RandomBytesAreTaken) {
    std::mt19937 random{1};
    for (int round = 0; round < 300; ++round) {
        std::string bytes(random() % 400, '\0');
        std::ranges::generate(bytes, [&random] { return static_cast<char>(random() % 3 == 0 ? random() : 0); });
        ASSERT_TRUE(TakesPacketInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(PacketInputs, DamagedFramesAreTaken) {
    std::mt19937 random{2};
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        for (std::size_t frames = random() % 5 + 1; frames > 0; --frames) {
            bytes += Frame(random);
        }
        for (std::size_t damage = random() % 3; damage > 0; --damage) {
            bytes[random() % bytes.size()] = static_cast<char>(random());
        }
        ASSERT_TRUE(TakesPacketInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(PacketInputs, ManyFramesAreTaken) {
    std::mt19937 random{3};
    std::string bytes;
    for (int frames = 0; frames < 3'000; ++frames) {
        bytes += Frame(random);
    }
    EXPECT_TRUE(TakesPacketInput(bytes));
}

}  // namespace
}  // namespace tallyhut
