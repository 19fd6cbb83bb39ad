#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// PackSpot.txt, one value a line. Its members begin as the form does without a file.
struct SpotRecord {
    std::string baud = "9600";
    std::string parity = "N";
    std::string dataBits = "8";
    std::string stopBits = "1";
    std::uint8_t commPort = 1;  ///< 1 to 10
    std::string power = "N";    ///< "N" none, "R" RTS, "D" DTR
    std::string type = "None";  ///< of the connection
    std::uint8_t convertsToHex = 0;
    std::uint8_t handshaking = 3;  ///< 1 none, 2 Xon Xoff, 3 RTS, 4 both
    std::uint8_t listsDxOnly = 0;  ///< stored, and left unset at a start
    bool showsList = false;
    std::string commandCharacter = "03";  ///< hexadecimal, for the command mode of a TNC
    std::string telnetPort = {};
    std::string telnetHost = {};

    bool operator==(const SpotRecord&) const = default;
};

/// The text of the file, CR LF included.
std::string WriteSpotRecord(const SpotRecord& record);

/// Reads the text of the file into the record, in the order of its lines, as far as it can be read; what follows keeps
/// what the record held. False when it could not be read whole.
bool ReadSpotRecord(std::string_view text, SpotRecord& record);

}  // namespace tallyhut
