#include "contest/call_key.h"

#include <algorithm>
#include <array>

#include "contest/call_digits.h"
#include "values/text_lines.h"

namespace tallyhut {
namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

char Capital(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

bool IsCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

}  // namespace

std::optional<CallKey> KeyOfCall(std::string_view call) {
    if (call.empty() || call.size() > kLongestKeyedCall) {
        return std::nullopt;
    }
    CallKey key = 0;
    for (std::size_t i = 0; i < call.size(); ++i) {
        const CallKey digit = DigitOf(call[i]);
        if (digit == 0) {
            return std::nullopt;
        }
        key += digit * kCallWeights[i];
    }
    return key;
}

std::optional<CallKey> KeyOfListedCall(std::string_view word) {
    word = Bare(word);
    if (word.size() > kLongestKeyedCall) {
        return std::nullopt;
    }
    std::array<char, kLongestKeyedCall> characters{};
    std::ranges::transform(word, characters.begin(), Capital);
    const std::string_view call{characters.data(), word.size()};
    return std::ranges::any_of(call, IsDigit) && std::ranges::any_of(call, IsCapital) ? KeyOfCall(call) : std::nullopt;
}

std::string CallOfKey(CallKey key) {
    std::string call;
    for (const CallKey weight : kCallWeights) {
        const CallKey digit = key / weight;
        if (digit == 0) {
            break;
        }
        call += kCallCharacters.at(digit - 1);
        key %= weight;
    }
    return call;
}

}  // namespace tallyhut
