#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "contest/bands.h"

namespace tallyhut {

/// What a decoder looks at: the bytes of one read, and the strings that the radio was asked with.
struct RigReply {
    std::string_view rxBuffer;
    std::string_view frequencyString;
    std::string_view modeString;
};

/// What a decoder has found; a member stays empty where the reply says nothing of it or fails before it.
struct RigReading {
    std::optional<float> frequency;  ///< MHz
    std::optional<std::string_view> mode;
    std::optional<std::uint8_t> vfoDigit;
};

/// Decoders never fail: a reply that cannot be read is an empty reading.
using RigDecoder = RigReading (*)(const RigReply&);

}  // namespace tallyhut
