#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "values/number.h"

namespace tallyhut {

/// The frequency in MHz that an operator has typed; nothing where it is no number, or beyond what a frequency holds.
inline std::optional<float> TypedFrequency(std::string_view text) {
    const std::optional<double> value = ParseNumber(text);
    if (!value || std::abs(*value) > static_cast<double>(std::numeric_limits<float>::max())) {
        return std::nullopt;
    }
    return static_cast<float>(*value);
}

}  // namespace tallyhut
