#pragma once

#include <cstddef>

#include "rig/rig_reply.h"

namespace tallyhut {

// Radios that answer with a block of bytes. Nothing marks its begin: the first byte of the read is the first of the
// block.

/// Where a block keeps its frequency, a binary number, in its hexadecimal text, and how it tells the mode.
struct StatusField {
    std::size_t first = 1;   ///< first digit of the frequency, counted from 1
    std::size_t digits = 6;  ///< digits of it, high digit first
    double countsPerMegahertz = 100'000;
    char cwDigit = '2';
    std::string_view phoneDigits = "0134567";  ///< empty: all but the CW digit
};

inline constexpr StatusField kYaesu890Field{.first = 5};
inline constexpr StatusField kYaesu1000Field{.first = 4};  // begins in the middle of a byte: the radio sends it so
inline constexpr StatusField kYaesu990Field{.first = 3};
inline constexpr StatusField kYaesu920Field{
    .first = 3, .digits = 8, .countsPerMegahertz = 1'000'000, .cwDigit = '1', .phoneDigits = ""};

/// At least 5 bytes; the mode is the low half of byte 8.
RigReading ReadStatusBlock(const StatusField& field, std::string_view rxBuffer);

template <const StatusField& Field>
RigReading ReadStatusBlock(const RigReply& reply) {
    return ReadStatusBlock(Field, reply.rxBuffer);
}

/// Four bytes of BCD in units of 10 Hz, high pair first, and a mode byte.
RigReading ReadFiveByteStatus(const RigReply& reply);
/// The same digits with the low pair first in bytes 6 to 9, and the mode in byte 10.
RigReading ReadYaesu757(const RigReply& reply);
/// A letter, then four bytes of binary hertz.
RigReading ReadPanelFrequency(const RigReply& reply);
/// The low half of byte 2.
RigReading ReadPanelMode(const RigReply& reply);

}  // namespace tallyhut
