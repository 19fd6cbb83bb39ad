#include "tests/fuzz/rig_inputs.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr int kRounds = 3'000;

/// What radios and files really hold, to be damaged.
const std::vector<std::string>& GoodInputs() {
    static const std::vector<std::string> inputs{
        "FA00014200000;MD3;",
        "IF00014200000     +000000000031000000;",
        "FA14200000;MD03;",
        "@AF14200000\r@RMM3\r",
        HexToBytes("FEFE64E003FDFEFEE064030000201400FD"),
        HexToBytes("FEFEE0640403FD"),
        HexToBytes("0142345601"),
        HexToBytes("00000000000000420102"),
        HexToBytes("000015AAE0000002"),
        HexToBytes("4100D8ACC00D"),
        "\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FA;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n",
        "\"now\"\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n\"40\",\"E\",\"PH\",7.125,7.3\r\n",
        "FE FE 64 E0 03 FD",
    };
    return inputs;
}

TEST(RigInputs, RandomBytesAreTaken) {
    std::mt19937 random{1937};
    std::uniform_int_distribution<int> length{0, 60};
    std::uniform_int_distribution<int> byte{0, 255};
    for (int round = 0; round < kRounds; ++round) {
        std::string bytes(static_cast<std::size_t>(length(random)), '\0');
        for (char& one : bytes) {
            one = static_cast<char>(byte(random));
        }
        ASSERT_TRUE(TakesRigInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(RigInputs, DamagedRepliesAreTaken) {
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
                    bytes.insert(place, 1, "E9-&H.\xFE\xFD\x03 "[below(10)]);
                    break;
                default:
                    bytes += GoodInputs().at(below(GoodInputs().size()));
            }
        }
        ASSERT_TRUE(TakesRigInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(RigInputs, FloodIsTaken) {
    for (const std::string& piece : GoodInputs()) {
        std::string flood;
        while (flood.size() < 100'000) {
            flood += piece;
        }
        EXPECT_TRUE(TakesRigInput(flood)) << BytesToHexDump(piece);
    }
}

}  // namespace
}  // namespace tallyhut
