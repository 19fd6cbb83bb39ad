#pragma once

namespace tallyhut {

// The longest texts that fields take where nothing else sets a length.

inline constexpr int kLongestCall = 30;            ///< a station's own: two prefixes, a call and a suffix
inline constexpr int kLongestExchangePart = 10;    ///< precedence, check or section as the station sends it
inline constexpr int kLongestNumber = 100;         ///< a frequency or a power with every digit that somebody may want
inline constexpr int kLongestAnswer = 200;         ///< a name, a line of an address, a club
inline constexpr int kLongestDescription = 1'000;  ///< rigs, antennas, all operators, a command for a radio
inline constexpr int kLongestPath = 4'095;         ///< as the system takes
inline constexpr int kLongestFileText = 32'767;    ///< a field of a file, so that what stands in the log is never cut
inline constexpr int kLongestPage = 1'000'000;     ///< the help text

}  // namespace tallyhut
