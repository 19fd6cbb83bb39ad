#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// A radio of the Kenwood family: commands of two letters and digits, each ended by a semicolon. A command without
/// digits asks, one with digits sets. Set commands are not answered; what the radio does not know, it answers with
/// "?;".
class KenwoodRadio {
public:
    std::array<long, 2> hertz{14'025'000, 14'030'000};  ///< of VFO A and B
    std::size_t vfo = 0;                                ///< the one in use; 1 is B
    char mode = '3';                                    ///< 1 LSB, 2 USB, 3 CW, 4 FM, 5 AM, 6 FSK, 7 CW reversed

    std::string Hear(std::string_view bytes);

private:
    std::string Obey(std::string_view command);
    std::string AnswerOf(std::string_view letters) const;
    bool Set(std::string_view letters, std::string_view value);

    std::string unfinished_;
};

}  // namespace tallyhut
