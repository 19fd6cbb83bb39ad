#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyhut {

/// What a frequency command is made from.
struct FrequencyOrder {
    /// MHz. One radio's command overwrites it.
    float& frequency;
    std::string_view frequencyString;  ///< what the radio is asked with; names its VFO or its address
    std::uint8_t vfoDigit = 0;         ///< of the last reply; 1 is VFO B
};

/// The bytes that tune a radio. Throws ValueError for a frequency that is none, below 0 or too large to be written, and
/// for a string whose address is none.
using FrequencyCommand = std::string (*)(const FrequencyOrder&);

/// MHz as whole hertz. Throws as a command does.
std::int64_t WholeHertz(float frequency);

/// "FA00014200000;" to the VFO that the frequency string names.
std::string KenwoodFrequency(const FrequencyOrder& order);
/// The same to the VFO that the radio has said it is on.
std::string KenwoodActiveFrequency(const FrequencyOrder& order);
/// The same to VFO A, whatever is read.
std::string ElecraftFrequency(const FrequencyOrder& order);
/// "FA14200000;"
std::string DualFrequency(const FrequencyOrder& order);
/// "FA014200000;". Throws ValueError for what nine digits of hertz do not hold.
std::string NineDigitFrequency(const FrequencyOrder& order);
/// FE FE 64 E0 05 00 00 20 14 00 FD. Five bytes of digits also to the radio that answers with four.
std::string IcomFrequency(const FrequencyOrder& order);
/// 01 42 00 00 01
std::string YaesuFrequency(const FrequencyOrder& order);
/// 00 00 42 01 0A
std::string YaesuReversedFrequency(const FrequencyOrder& order);
/// 2A 41 00 D8 AC C0 0D; leaves 0 in the order's frequency.
std::string PanelFrequency(const FrequencyOrder& order);
/// "*AF14.2" and a carriage return: MHz, though the radio answers in hertz.
std::string OrionFrequency(const FrequencyOrder& order);

}  // namespace tallyhut
