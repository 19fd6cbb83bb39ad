#include "tests/fuzz/cluster_inputs.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "values/hex.h"

namespace tallyhut {
namespace {

TEST(ClusterInputs, RandomMixturesAreTaken) {
    using namespace std::string_literals;
    const std::array pieces{"\xFF"s,    "\xFF\xFB\x01"s,  "\xFF\xFA\x18"s, "\xFF\xF0"s, "\r"s,         "\n"s,   "\0"s,
                            "login: "s, "Last login:"s,   "password:"s,    "call:"s,    "callsign: "s, "hush"s, "hu"s,
                            ">"s,       "DX de W1AW-#: "s};
    std::mt19937 random{1};
    for (int round = 0; round < 2'000; ++round) {
        std::string bytes;
        for (std::size_t count = random() % 40; count > 0; --count) {
            bytes +=
                random() % 3 == 0 ? std::string(1, static_cast<char>(random())) : pieces.at(random() % pieces.size());
        }
        ASSERT_TRUE(TakesClusterInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(ClusterInputs, LongLinesAreTaken) {
    for (const std::size_t length : {1'023U, 1'024U, 1'025U, 100'000U}) {
        const std::string line(length, 'x');
        EXPECT_TRUE(TakesClusterInput(line + "\nDX de\r\n" + line)) << length;
    }
}

}  // namespace
}  // namespace tallyhut
