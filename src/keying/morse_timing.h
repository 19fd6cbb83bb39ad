#pragma once

#include <string_view>

namespace tallyhut {

/// What is keyed for one character: its elements, and the silence that the word space adds behind them.
struct Keying {
    std::string_view elements;
    double silence = 0;  ///< units, a whole number from 0
};

/// The keying of a character with the word space as the form holds it, which counts for the blank alone: units added to
/// its eight or, below 0, taken from them. A text that is no number is 0.
Keying KeyingOf(char character, std::string_view wordSpace);

/// Milliseconds of one unit, 1200 / WPM with its fraction; negative for a negative speed. Throws ValueError for a speed
/// that is 0, no number or empty, and for one so low that a unit would last more than a minute.
double UnitMs(std::string_view wpm);

/// Rounds of the counting loop that last one unit. Throws ValueError for a speed that is 0, no number or empty.
double UnitRounds(double loopsPer60ms, std::string_view wpm);

}  // namespace tallyhut
