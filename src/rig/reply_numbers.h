#pragma once

#include <optional>
#include <string_view>

namespace tallyhut {

// Steps that decoders of several families share. Texts come from outside and may be anything.

/// The first `length` characters from `position` on, counted from 0; fewer or none where the text ends before.
std::string_view Middle(std::string_view text, std::size_t position, std::size_t length);

/// A number that a float can hold; nothing where the text is none.
std::optional<float> FloatOf(std::string_view text);

/// Decimal hertz as MHz, rounded to 5 decimals.
std::optional<float> MegahertzOfHertz(std::string_view text);

/// Counts of a unit as MHz, to 5 decimals as the form shows them.
float MegahertzOfCounts(double counts, double countsPerMegahertz);

}  // namespace tallyhut
