#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// CW.txt, one value a line. Its members begin as the form does without a file.
struct CwRecord {
    std::string Text1;
    std::string Text2;
    std::string Text3;
    std::string Text4;
    std::string Text5;
    std::string Text6;
    std::string Text7;
    std::string Text8;
    std::string Text9;
    std::string Text10 = "0";    ///< serial port
    std::string Text11 = "13";   ///< WPM
    std::string Text12;          ///< F10
    std::string Text13;          ///< F11
    std::string txtSpace = "0";  ///< units
    std::uint8_t gCWKeying = 0;
    std::string Text14 = "&H378";  ///< parallel port
    std::uint8_t Check1 = 0;       ///< 0 or 1
    std::string txtCWLoop = "0";   ///< seconds

    bool operator==(const CwRecord&) const = default;
};

/// The text of the file, CR LF included.
std::string WriteCwRecord(const CwRecord& record);

/// Reads the text of the file into the record, in the order of its lines, as far as it can be read; what follows keeps
/// what the record held. A ninth line that is empty becomes a message for tests. False when it could not be read whole.
bool ReadCwRecord(std::string_view text, CwRecord& record);

}  // namespace tallyhut
