#include "tests/peers/kenwood_radio.h"

#include <cstdio>

namespace tallyhut {
namespace {

constexpr std::size_t kFrequencyDigits = 11;
constexpr const char* kUnknown = "?;";

std::string FrequencyDigits(long hertz) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%011ld", hertz);
    return digits.data();
}

bool IsNumber(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::string KenwoodRadio::Hear(std::string_view bytes) {
    std::string answers;
    for (const char byte : bytes) {
        if (byte == ';') {
            answers += Obey(unfinished_);
            unfinished_.clear();
        } else {
            unfinished_ += byte;
        }
    }
    return answers;
}

std::string KenwoodRadio::Obey(std::string_view command) {
    const std::string_view letters = command.substr(0, 2);
    if (command.size() <= 2) {
        return AnswerOf(letters);
    }
    return Set(letters, command.substr(2)) ? "" : kUnknown;
}

std::string KenwoodRadio::AnswerOf(std::string_view letters) const {
    if (letters == "FA" || letters == "FB") {
        return std::string{letters} + FrequencyDigits(hertz[letters == "FB" ? 1 : 0]) + ';';
    }
    if (letters == "MD") {
        return std::string{"MD"} + mode + ';';
    }
    if (letters == "IF") {
        // Frequency, step, offset, offset switches, memory channel, receiving, mode, VFO, scan, split, tones.
        return "IF" + FrequencyDigits(hertz.at(vfo)) + "     " + "+0000" + "00" + "000" + '0' + mode +
               static_cast<char>('0' + vfo) + "0" + "0" + "0" + "00" + ' ' + ';';
    }
    if (letters == "ID") {
        return "ID019;";  // a TS-2000
    }
    if (letters == "PS" || letters == "AI") {
        return std::string{letters} + (letters == "PS" ? "1;" : "0;");  // switched on; says nothing unasked
    }
    return kUnknown;
}

bool KenwoodRadio::Set(std::string_view letters, std::string_view value) {
    if (!IsNumber(value)) {
        return false;
    }
    if ((letters == "FA" || letters == "FB") && value.size() == kFrequencyDigits) {
        hertz[letters == "FB" ? 1 : 0] = std::stol(std::string{value});
        return true;
    }
    if (letters == "MD" && value.size() == 1 && value[0] >= '1' && value[0] <= '7') {
        mode = value[0];
        return true;
    }
    return letters == "AI" && value == "0";
}

}  // namespace tallyhut
