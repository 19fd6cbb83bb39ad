#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// WK.txt, one value a line. Its members begin as the form does without a file.
struct WinKeyRecord {
    std::uint8_t gWKPort = 0;
    std::string txtWKWPM = "18";
    std::string txtWeight = "50";
    std::string txtLeadIn = "0";
    std::string txtTail = "0";
    std::string txtRatio = "50";
    std::uint8_t gWKPinConfig = 6;
    std::uint8_t gWKMode = 0;

    bool operator==(const WinKeyRecord&) const = default;
};

/// The text of the file, CR LF included.
std::string WriteWinKeyRecord(const WinKeyRecord& record);

/// Reads the text of the file into the record, in the order of its lines, as far as it can be read; what follows keeps
/// what the record held. The last two lines may be missing: older files end before them. False when it could not be
/// read whole.
bool ReadWinKeyRecord(std::string_view text, WinKeyRecord& record);

}  // namespace tallyhut
