#include "tests/fuzz/terminal_inputs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "values/hex.h"

namespace tallyhut {
namespace {

TEST(TerminalInputs, RandomBytesAreTaken) {
    std::mt19937 random{1};
    for (int round = 0; round < 1'000; ++round) {
        std::string bytes(random() % 300, '\0');
        std::ranges::generate(
            bytes, [&random] { return random() % 4 == 0 ? "\n\r\0D"[random() % 4] : static_cast<char>(random()); });
        ASSERT_TRUE(TakesTerminalInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(TerminalInputs, LongLinesAreTaken) {
    for (const std::size_t length : {65'535U, 65'536U, 65'537U, 200'000U}) {
        const std::string line(length, 'x');
        EXPECT_TRUE(TakesTerminalInput(line + "\nDX de\n" + line)) << length;
    }
}

}  // namespace
}  // namespace tallyhut
