#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

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

// The modes that decoders tell of.
inline constexpr std::string_view kPhone = "PH";
inline constexpr std::string_view kCw = "CW";

}  // namespace tallyhut
