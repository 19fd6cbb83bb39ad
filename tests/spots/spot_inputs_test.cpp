#include "tests/fuzz/spot_inputs.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr int kRounds = 3'000;

/// What nodes and skimmers really send, to be damaged.
const std::vector<std::string>& GoodInputs() {
    static const std::vector<std::string> inputs{
        "DX de K3LR:      14025.3  W1AW         CW CT                          2104Z FN31\r\n",
        "DX de VE7CC-#:    7012.0  K1ABC/VE3    24 DB  28 WPM  CQ              2105Z\a\a\r\n",
        "dx de N1XX:       3802.5  KH6XX        PAC loud                       0312Z BK29\n",
        "DX de W2XYZ:     21303.3  VE3/K1ABC    PLS NEED MD                    1308Z\r\n",
        "WL7ABC/P",
        "N6/W1AW/3",
        "To ALL de K3LR: contest is on\r\n",
    };
    return inputs;
}

TEST(SpotInputs, RandomBytesAreTaken) {
    std::mt19937 random{1930};
    std::uniform_int_distribution<int> length{0, 120};
    std::uniform_int_distribution<int> byte{0, 255};
    for (int round = 0; round < kRounds; ++round) {
        std::string bytes(static_cast<std::size_t>(length(random)), '\0');
        for (char& one : bytes) {
            one = static_cast<char>(byte(random));
        }
        ASSERT_TRUE(TakesSpotInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(SpotInputs, DamagedPostsAreTaken) {
    std::mt19937 random{2026};
    const auto below = [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>{0, limit - 1}(random);
    };
    for (int round = 0; round < kRounds; ++round) {
        std::string bytes = GoodInputs().at(below(GoodInputs().size()));
        for (std::size_t damage = below(4) + 1; damage > 0 && !bytes.empty(); --damage) {
            const std::size_t place = below(bytes.size());
            switch (below(4)) {
                case 0:
                    bytes[place] = static_cast<char>(below(256));
                    break;
                case 1:
                    bytes.erase(place, 1);
                    break;
                case 2:
                    bytes.insert(place, 1, "K9/-&HE. \r"[below(10)]);
                    break;
                default:
                    bytes += GoodInputs().at(below(GoodInputs().size()));
            }
        }
        ASSERT_TRUE(TakesSpotInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(SpotInputs, LineOfAMegabyteIsTaken) {
    for (const std::string& piece : GoodInputs()) {
        std::string line;
        while (line.size() < 1'000'000) {
            line += piece;
        }
        EXPECT_TRUE(TakesSpotInput(line)) << BytesToHexDump(piece);
    }
}

}  // namespace
}  // namespace tallyhut
