#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// A radio on a bus of one wire: FE FE, address to, address from, command, data, FD. Whoever speaks on the wire hears
/// himself, so all that the program sends comes back to it. Frames for other addresses are left alone.
class BusRadio {
public:
    unsigned char address = 0x64;
    long hertz = 14'025'000;
    unsigned char mode = 3;  ///< 0 LSB, 1 USB, 2 AM, 3 CW, 4 RTTY, 5 FM, 7 CW reversed, 8 RTTY reversed

    std::string Hear(std::string_view bytes);
    /// What the radio tells everybody when its knob has been turned.
    std::string TurnTo(long newHertz);

private:
    std::string Obey(std::string_view frame);
    std::string Frame(unsigned char to, std::string_view content) const;
    std::string FrequencyBytes() const;

    std::string unfinished_;
};

}  // namespace tallyhut
