#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// A radio that speaks in letters as those of the Kenwood family do, with nine digits of hertz and the number of the
/// receiver in front of the mode. Set commands are not answered; what the radio does not know, it answers with "?;".
class NineDigitRadio {
public:
    long hertz = 14'025'000;
    char mode = '3';  ///< 1 LSB, 2 USB, 3 CW, 4 FM, 5 AM, 6 RTTY, 7 CW reversed

    std::string Hear(std::string_view bytes);

private:
    std::string Obey(std::string_view command);
    bool Set(std::string_view command);

    std::string unfinished_;
};

}  // namespace tallyhut
