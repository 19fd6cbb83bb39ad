#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// A radio that takes commands of five bytes, the last of which is the command, and answers 10 with a block of its
/// state: the frequency as a binary number of three bytes, high byte first, in units of 10 Hz, and the mode in byte 8.
/// Digits of a frequency command (0A) come the low pair first. Set commands (0A frequency, 0C mode) are not answered.
class BlockRadio {
public:
    std::size_t frequencyAt = 2;  ///< bytes before the frequency in the block; models differ
    long hertz = 14'025'000;
    unsigned char mode = 2;  ///< in the block: 0 LSB, 1 USB, 2 CW, 3 AM, 4 FM, 5 RTTY, 6 packet

    std::string Hear(std::string_view bytes);

private:
    std::string Obey(std::string_view command);
    std::string Block() const;

    std::string unfinished_;
};

}  // namespace tallyhut
