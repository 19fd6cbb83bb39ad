#include "tests/peers/five_byte_radio.h"

namespace tallyhut {
namespace {

constexpr std::size_t kCommandLength = 5;
constexpr std::size_t kFrequencyBytes = 4;
constexpr long kHertzAUnit = 10;

unsigned Number(char byte) {
    return static_cast<unsigned char>(byte);
}

}  // namespace

std::string FiveByteRadio::Hear(std::string_view bytes) {
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

std::string FiveByteRadio::Obey(std::string_view command) {
    const unsigned order = Number(command.back());
    if (order == 0x00 || order == 0x80) {
        listens = order == 0x00;
    }
    if (!listens) {
        return {};
    }
    if (order == 0x01) {
        long units = 0;
        for (std::size_t i = 0; i < kFrequencyBytes; ++i) {
            units = units * 100 + static_cast<long>(Number(command[i]) / 16 * 10 + Number(command[i]) % 16);
        }
        hertz = units * kHertzAUnit;
    } else if (order == 0x07) {
        mode = static_cast<unsigned char>(command[0]);
    } else if (order == 0x03) {
        std::string status(kCommandLength, static_cast<char>(mode));
        long rest = hertz / kHertzAUnit;
        for (std::size_t i = kFrequencyBytes; i > 0; --i, rest /= 100) {
            status[i - 1] = static_cast<char>(rest % 100 / 10 * 16 + rest % 10);
        }
        return status;
    }
    return {};
}

}  // namespace tallyhut
