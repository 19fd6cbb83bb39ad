#include "rig/frequency_command.h"

#include <algorithm>
#include <cmath>

#include "rig/reply_numbers.h"
#include "values/hex.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kHertz = 1'000'000;  // counts of a megahertz
constexpr double kTensOfHertz = 100'000;

/// Up to the limit every whole number of hertz is exact.
void RefuseUntunable(float frequency) {
    constexpr float kMostMegahertz = 1e9F;
    if (!(frequency >= 0 && frequency <= kMostMegahertz)) {
        throw ValueError("No radio can be tuned to " + PlainText(frequency) + " MHz.");
    }
}

/// Multiplied in 64 bits, so that the float next to 7.0251 gives 7025100.
double WholeCounts(float frequency, double countsPerMegahertz) {
    RefuseUntunable(frequency);
    return RoundHalfEven(static_cast<double>(frequency) * countsPerMegahertz);
}

/// Zeros in front up to the width; a longer number stays longer.
std::string ZeroFilled(std::string digits, std::size_t width) {
    digits.insert(0, width - std::min(width, digits.size()), '0');
    return digits;
}

std::string Digits(const FrequencyOrder& order, double countsPerMegahertz, std::size_t width) {
    return ZeroFilled(PlainText(static_cast<std::int64_t>(WholeCounts(order.frequency, countsPerMegahertz))), width);
}

ValueError TooHigh(float frequency) {
    return ValueError{PlainText(frequency) + " MHz is too high for the commands of this radio."};
}

/// For a command of bytes, which cannot end in half of one.
std::string WholePairs(std::string digits, float frequency) {
    if (digits.size() % 2 != 0) {
        throw TooHigh(frequency);
    }
    return digits;
}

std::string PairsOfDigits(const FrequencyOrder& order, double countsPerMegahertz, std::size_t width) {
    return WholePairs(Digits(order, countsPerMegahertz, width), order.frequency);
}

std::string PairsReversed(std::string_view digits) {
    std::string reversed;
    for (; !digits.empty(); digits.remove_prefix(std::min<std::size_t>(2, digits.size()))) {
        reversed.insert(0, digits.substr(0, 2));
    }
    return reversed;
}

std::string KenwoodCommand(std::string_view vfo, const FrequencyOrder& order) {
    return std::string{vfo} + Digits(order, kHertz, 11) + ';';
}

}  // namespace

std::int64_t WholeHertz(float frequency) {
    return static_cast<std::int64_t>(WholeCounts(frequency, kHertz));
}

std::string KenwoodFrequency(const FrequencyOrder& order) {
    return KenwoodCommand(order.frequencyString.substr(0, 2), order);
}

std::string KenwoodActiveFrequency(const FrequencyOrder& order) {
    return KenwoodCommand(order.vfoDigit == 1 ? "FB" : "FA", order);
}

std::string ElecraftFrequency(const FrequencyOrder& order) {
    return KenwoodCommand("FA", order);
}

std::string DualFrequency(const FrequencyOrder& order) {
    return std::string{order.frequencyString.substr(0, 2)} + Digits(order, kHertz, 8) + ';';
}

std::string NineDigitFrequency(const FrequencyOrder& order) {
    constexpr std::size_t kDigits = 9;
    const std::string digits = Digits(order, kHertz, kDigits);
    if (digits.size() > kDigits) {
        throw TooHigh(order.frequency);
    }
    return std::string{order.frequencyString.substr(0, 2)} + digits + ';';
}

std::string IcomFrequency(const FrequencyOrder& order) {
    return HexToBytes("FEFE" + std::string{Middle(order.frequencyString, 6, 2)} + "E005" +
                      PairsReversed(PairsOfDigits(order, kHertz, 10)) + "FD");
}

std::string YaesuFrequency(const FrequencyOrder& order) {
    return HexToBytes(PairsOfDigits(order, kTensOfHertz, 8) + "01");
}

std::string YaesuReversedFrequency(const FrequencyOrder& order) {
    return HexToBytes(PairsReversed(PairsOfDigits(order, kTensOfHertz, 8)) + "0A");
}

std::string PanelFrequency(const FrequencyOrder& order) {
    constexpr float kBase = 16;
    // In 32 bits and in the caller's own variable: above 16777216 Hz the command is the float's nearest, and
    // the caller is left with 0.
    float& rest = order.frequency;
    const float ordered = rest;
    rest = static_cast<float>(WholeCounts(rest, kHertz));
    std::string digits;
    while (rest > 0) {
        const float quotient = std::floor(rest / kBase);
        digits.insert(digits.begin(), NibbleToHex(static_cast<unsigned>(rest - quotient * kBase)));
        rest = quotient;
    }
    return HexToBytes("2A41" + WholePairs(ZeroFilled(digits, 8), ordered) + "0D");
}

std::string OrionFrequency(const FrequencyOrder& order) {
    RefuseUntunable(order.frequency);
    return "*AF" + PlainText(order.frequency) + '\r';
}

}  // namespace tallyhut
