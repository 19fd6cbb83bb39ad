#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// wave2.txt, one value a line. Its members begin as the form does without a file.
struct PhoneRecord {
    std::string Text1;
    std::string Text2;
    std::string Text3;
    std::string Text4;
    std::string Text5;
    std::string Text6;
    std::string Text7;
    std::string Text8;
    std::string Text9;
    std::string Text10 = "0";      ///< serial port
    std::uint8_t line = 0;         ///< 0 RTS, 1 DTR, 2 parallel port
    std::string txtPHLoop = "0";   ///< seconds
    std::string Text11 = "&H378";  ///< parallel port

    bool operator==(const PhoneRecord&) const = default;
};

/// The text of the file, CR LF included.
std::string WritePhoneRecord(const PhoneRecord& record);

/// Reads the text of the file into the record, in the order of its lines, as far as it can be read; what follows keeps
/// what the record held. False when it could not be read whole.
bool ReadPhoneRecord(std::string_view text, PhoneRecord& record);

}  // namespace tallyhut
