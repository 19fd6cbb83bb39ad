#include "contest/call_key.h"

#include "contest/call_digits.h"

namespace tallyhut {

std::optional<CallKey> KeyOfCall(std::string_view call) {
    if (call.empty() || call.size() > kLongestCall) {
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
