#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// How the radio is reached and asked, as the form last committed it.
struct RigSettings {
    std::string baud = "56000";  ///< five characters, blanks behind
    std::string parity = "N";    ///< "O", "N" or "E"
    std::string dataBits = "8";
    std::string stopBits = "1";
    std::string modeString;       ///< asks for the mode; follows txtMode as it is typed
    std::string frequencyString;  ///< asks for the frequency; follows txtFreq as it is typed
    std::string portSettings = "56000,N,8,1";
    std::uint8_t commPort = 1;   ///< 1 to 10
    std::string power = "N";     ///< of the interface: "N" none, "R" RTS, "D" DTR
    std::string pollRate = "M";  ///< "F", "M", "S" or "R"

    bool operator==(const RigSettings&) const = default;
};

/// The baud text in its fixed width of five characters.
std::string BaudText(std::string_view baud);

/// Baud, parity, data bits and stop bits joined with commas, "4800,N,8,2".
std::string PortSettings(const RigSettings& settings);

/// RigCntrl.txt, one line. Its members begin as the form does without a file.
struct RigRecord {
    RigSettings settings;
    std::string rigName;            ///< empty where none has been read
    std::uint8_t convertToHex = 0;  ///< 0 or 1
    std::uint8_t useFrequency = 1;  ///< 0 or 1
    std::uint8_t modeBy = 1;        ///< 1 the rig, 2 the frequency, 3 neither

    bool operator==(const RigRecord&) const = default;
};

/// The text of the file, CR LF included.
std::string WriteRigRecord(const RigRecord& record);

/// Reads the text of the file as far as it can be read: at a field that cannot be taken it stops.
RigRecord ReadRigRecord(std::string_view text);

}  // namespace tallyhut
