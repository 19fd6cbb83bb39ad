#include "tests/peers/nine_digit_radio.h"

#include <array>
#include <cstdio>

namespace tallyhut {
namespace {

constexpr std::size_t kFrequencyDigits = 9;

std::string FrequencyDigits(long hertz) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%09ld", hertz);
    return digits.data();
}

bool IsNumber(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

std::string NineDigitRadio::Hear(std::string_view bytes) {
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

std::string NineDigitRadio::Obey(std::string_view command) {
    if (command == "FA") {
        return "FA" + FrequencyDigits(hertz) + ';';
    }
    if (command == "MD0") {
        return std::string{"MD0"} + mode + ';';
    }
    return Set(command) ? "" : "?;";
}

bool NineDigitRadio::Set(std::string_view command) {
    if (command.starts_with("FA") && command.size() == 2 + kFrequencyDigits && IsNumber(command.substr(2))) {
        hertz = std::stol(std::string{command.substr(2)});
        return true;
    }
    if (command.starts_with("MD0") && command.size() == 4 && command[3] >= '1' && command[3] <= '7') {
        mode = command[3];
        return true;
    }
    return false;
}

}  // namespace tallyhut
