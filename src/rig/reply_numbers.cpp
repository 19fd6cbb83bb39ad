#include "rig/reply_numbers.h"

#include <cmath>
#include <limits>

#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

std::optional<float> AsFloat(double value) {
    if (std::abs(value) > std::numeric_limits<float>::max()) {
        return std::nullopt;
    }
    return static_cast<float>(value);
}

}  // namespace

std::string_view Middle(std::string_view text, std::size_t position, std::size_t length) {
    return position < text.size() ? text.substr(position, length) : std::string_view{};
}

std::optional<float> FloatOf(std::string_view text) {
    const std::optional<double> value = ParseNumber(text);
    return value ? AsFloat(*value) : std::nullopt;
}

std::optional<float> MegahertzOfHertz(std::string_view text) {
    constexpr double kHertzPerMegahertz = 1'000'000;
    const std::optional<double> hertz = ParseNumber(text);
    return hertz ? AsFloat(RoundedTo(5, *hertz / kHertzPerMegahertz)) : std::nullopt;
}

float MegahertzOfCounts(double counts, double countsPerMegahertz) {
    return static_cast<float>(TrimmedNumber(FormatNumber(counts / countsPerMegahertz, "#####.####0")));
}

}  // namespace tallyhut
