#pragma once

#include <string_view>

namespace tallyhut {

/// Whether a file of any bytes is read as a call history and as a list of calls, or refused, in a manner that fits:
/// what is read holds calls alone, sorted and found again, and a line holds whole ones of them.
bool TakesKnownCallsInput(std::string_view bytes);

}  // namespace tallyhut
