#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "values/colour.h"
#include "values/text_file.h"

namespace tallyhut {

/// What the program remembers from run to run: the values of nspref.txt, in the order of its lines.
struct Preferences {
    std::string gOwnCall;
    std::int16_t reserved = 0;
    std::string gOwnPrec;
    std::string gOwnCheck;
    std::string gOwnSection;
    float gUtcOffset = 0;           ///< hours added to local time for UTC
    std::uint8_t gContestMode = 0;  ///< 0 CW, 1 Phone
    std::uint8_t gTabMode = 1;      ///< 1 # field first, 2 call field first, 3 call field first and again
    std::uint8_t gStationSet = 0;   ///< 1 after the station form was closed with Done
    std::string gBand = "40";
    float gOpSeconds = 0;  ///< operating time before the last Time On
    Colour gColorWorked = 0xFF0000;
    Colour gColorNeeded = 0x000080;
    float gFormScale = 100;      ///< percent of the screen
    std::uint8_t gVoiceNav = 0;  ///< voice navigation level, 0 off
    std::string gRigName = "None";
    std::uint8_t gTaskbar = 0;
    std::uint8_t gColorNeededSpots = 0;
    std::uint8_t gAudioAlert = 0;
};

/// The text of nspref.txt: one value a line, texts quoted, numbers bare.
std::string WritePreferences(const Preferences& preferences);

/// Reads the values in order; a value that cannot be taken throws ValueError and leaves it and the later ones as they
/// were.
void ReadPreferences(std::string_view text, Preferences& preferences);

/// The mode of the tab order; a stored value that is none counts as the first.
inline int TabMode(const Preferences& preferences) {
    return preferences.gTabMode == 2 || preferences.gTabMode == 3 ? preferences.gTabMode : 1;
}

}  // namespace tallyhut
