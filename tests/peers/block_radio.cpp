#include "tests/peers/block_radio.h"

#include <array>

namespace tallyhut {
namespace {

constexpr std::size_t kCommandLength = 5;
constexpr std::size_t kFrequencyDigitPairs = 4;
constexpr std::size_t kBlockLength = 19;
constexpr std::size_t kModeAt = 7;
constexpr long kHertzAUnit = 10;

/// The modes of the block by the numbers that the mode command uses for them.
constexpr std::array<unsigned char, 11> kModeOfCommand{0, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6};

unsigned Number(char byte) {
    return static_cast<unsigned char>(byte);
}

}  // namespace

std::string BlockRadio::Hear(std::string_view bytes) {
    std::string answers;
    for (const char byte : bytes) {
        unfinished_ += byte;
        if (unfinished_.size() == kCommandLength) {
            answers += Obey(unfinished_);
            unfinished_.clear();
        }
    }
    return answers;
}

std::string BlockRadio::Obey(std::string_view command) {
    switch (Number(command.back())) {
        case 0x0A: {
            long units = 0;
            for (std::size_t i = kFrequencyDigitPairs; i > 0; --i) {
                const unsigned pair = Number(command[i - 1]);
                units = units * 100 + static_cast<long>(pair / 16 * 10 + pair % 16);
            }
            hertz = units * kHertzAUnit;
            return {};
        }
        case 0x0C:
            if (const unsigned number = Number(command[3]); number < kModeOfCommand.size()) {
                mode = kModeOfCommand[number];
            }
            return {};
        case 0x10:
            return Number(command[3]) == 2 ? Block() : std::string{};
        default:
            return {};
    }
}

std::string BlockRadio::Block() const {
    std::string block(kBlockLength, '\0');
    const long units = hertz / kHertzAUnit;
    block[frequencyAt] = static_cast<char>(units >> 16 & 0xFF);
    block[frequencyAt + 1] = static_cast<char>(units >> 8 & 0xFF);
    block[frequencyAt + 2] = static_cast<char>(units & 0xFF);
    block[kModeAt] = static_cast<char>(mode);
    return block;
}

}  // namespace tallyhut
