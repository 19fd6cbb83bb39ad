#pragma once

#include <string_view>

namespace tallyhut {

/// Reads the bytes as a wave file. Either they are refused, or what is said of them is true: the samples lie within the
/// bytes, and all numbers are such as a player takes; false otherwise.
bool TakesWaveInput(std::string_view bytes);

}  // namespace tallyhut
