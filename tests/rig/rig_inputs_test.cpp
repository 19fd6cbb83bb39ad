#include "tests/fuzz/rig_inputs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/fuzz/damage.h"
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
    Damage damage{1937};
    for (int round = 0; round < kRounds; ++round) {
        const std::string bytes = damage.RandomBytes(60);
        ASSERT_TRUE(TakesRigInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(RigInputs, DamagedRepliesAreTaken) {
    Damage damage{2026};
    for (int round = 0; round < kRounds; ++round) {
        const std::string bytes = damage.Damaged(GoodInputs(), "E9-&H.\xFE\xFD\x03 ");
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
