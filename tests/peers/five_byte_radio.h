#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// A radio that takes commands of five bytes, the last of which is the command. It is deaf until it is told to listen
/// (00), and again after 80. Status (03) is answered with five bytes: four of decimal digits in units of 10 Hz, high
/// pair first, and the mode. Set commands (01 frequency, 07 mode) are not answered.
class FiveByteRadio {
public:
    long hertz = 14'025'000;
    unsigned char mode = 2;  ///< 0 LSB, 1 USB, 2 CW, 3 CW reversed, 4 AM, 8 FM, and 80 more where the filter is narrow
    bool listens = false;

    std::string Hear(std::string_view bytes);

private:
    std::string Obey(std::string_view command);

    std::string unfinished_;
};

}  // namespace tallyhut
