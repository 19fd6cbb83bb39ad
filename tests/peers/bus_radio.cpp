#include "tests/peers/bus_radio.h"

namespace tallyhut {
namespace {

constexpr char kBegin = '\xFE';
constexpr char kEnd = '\xFD';
constexpr unsigned char kEverybody = 0x00;
constexpr std::size_t kFrequencyBytes = 5;
constexpr const char* kDone = "\xFB";
constexpr const char* kRefused = "\xFA";
constexpr char kNarrowFilter = '\x02';

unsigned Number(char byte) {
    return static_cast<unsigned char>(byte);
}

/// Two decimal digits a byte, the last pair first; -1 where a half byte is no digit.
long HertzOf(std::string_view bytes) {
    long hertz = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        const unsigned pair = Number(bytes[i - 1]);
        if (pair / 16 > 9 || pair % 16 > 9) {
            return -1;
        }
        hertz = hertz * 100 + static_cast<long>(pair / 16 * 10 + pair % 16);
    }
    return hertz;
}

}  // namespace

std::string BusRadio::Hear(std::string_view bytes) {
    std::string wire{bytes};
    for (const char byte : bytes) {
        unfinished_ += byte;
        if (byte == kEnd) {
            wire += Obey(unfinished_);
            unfinished_.clear();
        }
    }
    return wire;
}

std::string BusRadio::TurnTo(long newHertz) {
    hertz = newHertz;
    return Frame(kEverybody, std::string(1, '\0') + FrequencyBytes());
}

std::string BusRadio::Obey(std::string_view frame) {
    const std::size_t begin = frame.rfind("\xFE\xFE");
    constexpr std::size_t kShortest = 6;
    if (begin == std::string_view::npos || frame.size() - begin < kShortest || Number(frame[begin + 2]) != address) {
        return {};
    }
    const auto from = static_cast<unsigned char>(frame[begin + 3]);
    const char command = frame[begin + 4];
    const std::string_view data = frame.substr(begin + 5, frame.size() - begin - kShortest);
    if (command == '\x03' && data.empty()) {
        return Frame(from, command + FrequencyBytes());
    }
    if (command == '\x04' && data.empty()) {
        return Frame(from, std::string{command, static_cast<char>(mode), kNarrowFilter});
    }
    if (command == '\x05' && data.size() == kFrequencyBytes && HertzOf(data) >= 0) {
        hertz = HertzOf(data);
        return Frame(from, kDone);
    }
    if (command == '\x06' && !data.empty() && data.size() <= 2 && Number(data[0]) <= 8 && Number(data[0]) != 6) {
        mode = static_cast<unsigned char>(data[0]);
        return Frame(from, kDone);
    }
    return Frame(from, kRefused);
}

std::string BusRadio::Frame(unsigned char to, std::string_view content) const {
    std::string frame{kBegin, kBegin, static_cast<char>(to), static_cast<char>(address)};
    frame += content;
    return frame + kEnd;
}

std::string BusRadio::FrequencyBytes() const {
    std::string bytes;
    long rest = hertz;
    for (std::size_t i = 0; i < kFrequencyBytes; ++i, rest /= 100) {
        bytes += static_cast<char>(rest % 100 / 10 * 16 + rest % 10);
    }
    return bytes;
}

}  // namespace tallyhut
