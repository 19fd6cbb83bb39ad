#include "rig/rig_request.h"

#include "values/hex.h"

namespace tallyhut {
namespace {

std::string EncodePairs(const RequestManner& manner, std::string_view text) {
    constexpr std::size_t kCharactersAPair = 3;
    return SpacedHexToBytes(manner.bytes == 0 ? text : text.substr(0, kCharactersAPair * manner.bytes));
}

}  // namespace

std::string EncodeRequest(const RequestManner& manner, std::string_view text, bool convertToHex) {
    if (text.size() < manner.leastLength) {
        return {};
    }
    switch (manner.coding) {
        case RequestCoding::Nothing:
            return {};
        case RequestCoding::Text:
            return std::string{text};
        case RequestCoding::TextWithReturn:
            return std::string{text} + '\r';
        case RequestCoding::Pairs:
            return EncodePairs(manner, text);
        case RequestCoding::AsChosen:
            return convertToHex ? EncodePairs(manner, text) : std::string{text};
    }
    return {};
}

}  // namespace tallyhut
