#include "keying/morse_timing.h"

#include <algorithm>
#include <cmath>

#include "keying/morse_table.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kSecondsAMinute = 60;
constexpr double kUnitsOfParis = 50;
constexpr double kMsASecond = 1000;
constexpr double kCalibratedWpm = 20;

constexpr double kLongestUnitMs = 60'000;  // a stray value must not hold the key down for hours

double Speed(std::string_view wpm) {
    const double speed = TrimmedNumber(wpm);
    if (speed == 0) {
        throw ValueError{"There is no speed of 0 words per minute"};
    }
    return speed;
}

/// Of the elements of a blank, so many stay.
std::string_view Cut(std::string_view elements, double units) {
    return elements.substr(0, static_cast<std::size_t>(std::max(RoundHalfEven(units), 0.0)));
}

}  // namespace

Keying KeyingOf(char character, std::string_view wordSpace) {
    const std::string_view elements = ElementString(character);
    if (character != ' ') {
        return {.elements = elements};
    }
    const double more = ParseNumber(wordSpace).value_or(0);
    if (more > 0) {
        return {.elements = elements, .silence = std::floor(more)};
    }
    return {.elements = Cut(elements, static_cast<double>(elements.size()) + more)};
}

double UnitMs(std::string_view wpm) {
    const double unit = kSecondsAMinute / (Speed(wpm) * kUnitsOfParis) * kMsASecond;
    if (!(unit <= kLongestUnitMs)) {
        throw ValueError{"A unit of this speed lasts too long"};
    }
    return unit;
}

double UnitRounds(double loopsPer60ms, std::string_view wpm) {
    return loopsPer60ms / Speed(wpm) * kCalibratedWpm;
}

}  // namespace tallyhut
