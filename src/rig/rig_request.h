#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

enum class RequestCoding {
    Nothing,
    Text,
    TextWithReturn,  ///< and a carriage return
    Pairs,           ///< hexadecimal pairs with blanks between, sent as bytes
    AsChosen,        ///< text, or pairs where the operator has ticked "Convert to Hex"
};

/// Which of the two strings goes out in one tick.
enum class RequestTurn { Both, FrequencyOnly, Alternating };

/// How a radio is asked for frequency and mode.
struct RequestManner {
    RequestCoding coding = RequestCoding::Nothing;
    RequestTurn turn = RequestTurn::Both;
    std::size_t leastLength = 1;  ///< of the string; a shorter one is not sent
    std::size_t bytes = 0;        ///< sent of a string of pairs; 0 for all
};

/// The bytes that ask for what a string says; empty when nothing is to be sent. Throws ValueError on a pair that is no
/// hexadecimal number.
std::string EncodeRequest(const RequestManner& manner, std::string_view text, bool convertToHex);

}  // namespace tallyhut
