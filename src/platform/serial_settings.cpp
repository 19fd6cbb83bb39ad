#include "platform/serial_settings.h"

#include <charconv>
#include <vector>

#include "platform/path_error.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr int kLowestBaud = 50;
constexpr int kHighestBaud = 4'000'000;

std::vector<std::string> PartsOf(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t comma = 0; comma != std::string::npos; begin = comma + 1) {
        comma = text.find(',', begin);
        parts.push_back(Trim(text.substr(begin, comma - begin)));
    }
    return parts;
}

/// A plain whole number; nothing for any other text and for one out of range.
std::optional<int> WholeNumberIn(const std::string& text, int lowest, int highest) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, number);
    const bool whole = error == std::errc{} && behind == end && number >= lowest && number <= highest;
    return whole ? std::optional{number} : std::nullopt;
}

}  // namespace

SerialSettings ParseSerialSettings(const std::string& text) {
    const std::vector<std::string> parts = PartsOf(text);
    if (parts.size() == 4 && parts[1].size() == 1) {
        const auto baud = WholeNumberIn(parts[0], kLowestBaud, kHighestBaud);
        const char parity = UpperCase(parts[1])[0];
        const auto dataBits = WholeNumberIn(parts[2], 5, 8);
        const auto stopBits = WholeNumberIn(parts[3], 1, 2);
        if (baud && (parity == 'N' || parity == 'E' || parity == 'O') && dataBits && stopBits) {
            return {.baud = *baud, .parity = parity, .dataBits = *dataBits, .stopBits = *stopBits};
        }
    }
    throw PathError(text, "These are no settings of a serial port");
}

std::string SettingsText(const SerialSettings& settings) {
    return std::to_string(settings.baud) + ',' + settings.parity + ',' + std::to_string(settings.dataBits) + ',' +
           std::to_string(settings.stopBits);
}

void CheckPortNumber(int number) {
    if (number < kFirstPort || number > kLastPort) {
        throw PathError(PortName(number), "There is no port of that number");
    }
}

std::string PortName(int number) {
    return "Serial port " + std::to_string(number);
}

}  // namespace tallyhut
