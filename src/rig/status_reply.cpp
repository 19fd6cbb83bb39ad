#include "rig/status_reply.h"

#include <algorithm>
#include <array>
#include <string>

#include "rig/reply_numbers.h"
#include "values/hex.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLeastBytes = 5;
constexpr std::size_t kLongestBlock = 10;  // bytes that a decoder looks at

struct ModeNumber {
    double number;
    std::string_view mode;
};

std::optional<std::string_view> ModeOf(double number, const auto& table) {
    const auto* row = std::ranges::find(table, number, &ModeNumber::number);
    return row == table.end() ? std::nullopt : std::optional{row->mode};
}

constexpr std::array kFiveByteModes{
    ModeNumber{0, kPhone},  ModeNumber{1, kPhone}, ModeNumber{4, kPhone}, ModeNumber{8, kPhone}, ModeNumber{84, kPhone},
    ModeNumber{88, kPhone}, ModeNumber{2, kCw},    ModeNumber{3, kCw},    ModeNumber{82, kCw},   ModeNumber{83, kCw},
};

constexpr std::array kYaesu757Modes{
    ModeNumber{0, kPhone}, ModeNumber{1, kPhone}, ModeNumber{2, kCw},
    ModeNumber{3, kCw},    ModeNumber{4, "AM"},   ModeNumber{5, "FM"},
};

std::string HexOf(std::string_view rxBuffer) {
    return BytesToHexText(rxBuffer.substr(0, kLongestBlock));
}

}  // namespace

RigReading ReadStatusBlock(const StatusField& field, std::string_view rxBuffer) {
    constexpr std::size_t kModeDigit = 15;
    RigReading reading;
    if (rxBuffer.size() < kLeastBytes) {
        return reading;
    }
    const std::string hex = HexOf(rxBuffer);
    reading.frequency =
        MegahertzOfCounts(HexNumber(Middle(hex, field.first - 1, field.digits)), field.countsPerMegahertz);
    const std::string_view digit = Middle(hex, kModeDigit, 1);
    if (digit == std::string_view{&field.cwDigit, 1}) {
        reading.mode = kCw;
    } else if (field.phoneDigits.empty() ||
               (!digit.empty() && field.phoneDigits.find(digit) != std::string_view::npos)) {
        reading.mode = kPhone;
    }
    return reading;
}

RigReading ReadFiveByteStatus(const RigReply& reply) {
    RigReading reading;
    if (reply.rxBuffer.size() < kLeastBytes) {
        return reading;
    }
    const std::string hex = HexOf(reply.rxBuffer);
    std::string text;
    text += hex[0] == '0' ? "" : hex.substr(0, 1);
    text += hex.starts_with("00") ? "" : hex.substr(1, 1);
    text += hex.starts_with("000") ? "" : hex.substr(2, 1) + '.';  // below 1 MHz the point is missing
    text += hex.substr(3, 5);
    const std::optional<float> frequency = FloatOf(text);
    const std::optional<double> modeByte = ParseNumber(hex.substr(8, 2));
    if (frequency && modeByte) {  // a mode byte such as 0A spoils the whole reply
        reading.frequency = frequency;
        reading.mode = ModeOf(*modeByte, kFiveByteModes);
    }
    return reading;
}

RigReading ReadYaesu757(const RigReply& reply) {
    constexpr double kTensOfHertzPerMegahertz = 100'000;
    RigReading reading;
    if (reply.rxBuffer.size() < kLeastBytes) {
        return reading;
    }
    const std::string hex = HexOf(reply.rxBuffer);
    std::string digits;
    for (const std::size_t pair : {16U, 14U, 12U, 10U}) {
        digits += Middle(hex, pair, 2);
    }
    const std::optional<float> counts = FloatOf(digits);
    if (!counts) {
        return reading;
    }
    reading.frequency = MegahertzOfCounts(TrimmedNumber(digits), kTensOfHertzPerMegahertz);
    const std::optional<double> modeByte = ParseNumber(Middle(hex, 18, 2));
    if (modeByte) {
        reading.mode = ModeOf(*modeByte, kYaesu757Modes);
    }
    return reading;
}

RigReading ReadPanelFrequency(const RigReply& reply) {
    constexpr std::size_t kLeastPanelBytes = 4;
    constexpr double kHertzPerMegahertz = 1'000'000;
    RigReading reading;
    if (reply.rxBuffer.size() >= kLeastPanelBytes) {
        reading.frequency = MegahertzOfCounts(HexNumber(Middle(HexOf(reply.rxBuffer), 2, 8)), kHertzPerMegahertz);
    }
    return reading;
}

RigReading ReadPanelMode(const RigReply& reply) {
    constexpr std::size_t kLeastPanelBytes = 3;
    RigReading reading;
    if (reply.rxBuffer.size() < kLeastPanelBytes) {
        return reading;
    }
    const char digit = HexOf(reply.rxBuffer)[3];
    if (digit == '3') {
        reading.mode = kCw;
    } else if (std::string_view{"0124"}.find(digit) != std::string_view::npos) {
        reading.mode = kPhone;
    }
    return reading;
}

}  // namespace tallyhut
