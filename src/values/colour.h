#pragma once

#include <cstdint>

namespace tallyhut {

/// A colour value: 24 bits with blue in the high byte and red in the low, or one of the desktop's own colours below.
using Colour = std::int32_t;

/// The desktop's colours have no fixed value: each host draws them from the palette in force. Negative, so that no
/// 24-bit value is one of them.
inline constexpr Colour kWindowGround = -2147483643;
inline constexpr Colour kWindowText = -2147483640;
inline constexpr Colour kButtonFace = -2147483633;
inline constexpr Colour kButtonText = -2147483630;

constexpr Colour FromRgb(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}

constexpr int RedOf(Colour colour) {
    return colour & 0xFF;
}
constexpr int GreenOf(Colour colour) {
    return (colour >> 8) & 0xFF;
}
constexpr int BlueOf(Colour colour) {
    return (colour >> 16) & 0xFF;
}

}  // namespace tallyhut
