#include "tests/fuzz/spot_inputs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/fuzz/damage.h"
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
    Damage damage{1930};
    for (int round = 0; round < kRounds; ++round) {
        const std::string bytes = damage.RandomBytes(120);
        ASSERT_TRUE(TakesSpotInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(SpotInputs, DamagedPostsAreTaken) {
    Damage damage{2026};
    for (int round = 0; round < kRounds; ++round) {
        const std::string bytes = damage.Damaged(GoodInputs(), "K9/-&HE. \r");
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
