#include "tests/fuzz/known_calls_inputs.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr int kRounds = 3'000;

/// What such files hold, to be damaged.
const std::vector<std::string>& GoodInputs() {
    static const std::vector<std::string> inputs{
        "!!Order!!,Call,Name,Sect,CK,UserText\r\nK9ZO,Jim,IL,69,\r\nVE3XYZ,Ann,GH,88,Toronto\r\n",
        "!!MapStateToSect!!\n!!Order!!;CK;State;Sect;Call\n72;NH;;w1xx\n1988;MD;MDC;VE3/K1ABC/P\n",
        "# VER20261101\r\nVER20261101\r\nAK1A\r\nK1AB\r\nK1/K1\r\n",
        "\xEF\xBB\xBF!!Order!!,Call\nK1A\nK1A\n",
    };
    return inputs;
}

TEST(KnownCallsInputs, RandomBytesAreTaken) {
    std::mt19937 random{1930};
    std::uniform_int_distribution<int> length{0, 120};
    std::uniform_int_distribution<int> byte{0, 255};
    for (int round = 0; round < kRounds; ++round) {
        std::string bytes = round % 2 == 0 ? "!!Order!!,Call,CK\n" : "";
        for (int left = length(random); left > 0; --left) {
            bytes += static_cast<char>(byte(random));
        }
        ASSERT_TRUE(TakesKnownCallsInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(KnownCallsInputs, DamagedFilesAreTaken) {
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
                    bytes.insert(place, 1, "K9/,;!#\n\r\0"[below(10)]);
                    break;
                default:
                    bytes += GoodInputs().at(below(GoodInputs().size()));
            }
        }
        ASSERT_TRUE(TakesKnownCallsInput(bytes)) << BytesToHexDump(bytes);
    }
}

TEST(KnownCallsInputs, AMegabyteOfEachIsTaken) {
    for (const std::string& piece : GoodInputs()) {
        std::string text = piece;
        while (text.size() < 1'000'000) {
            text += piece;
        }
        EXPECT_TRUE(TakesKnownCallsInput(text));
        std::erase(text, '\n');
        EXPECT_TRUE(TakesKnownCallsInput(text));
    }
}

}  // namespace
}  // namespace tallyhut
