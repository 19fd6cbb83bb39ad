#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"

namespace tallyhut {

/// What the poll knows of the radio.
struct RigState {
    static constexpr std::uint8_t kNoVfoYet = 10;

    std::string RxBuffer;        ///< what the last read took from the port; empty outside a read tick
    float RigFrequency = 0;      ///< MHz; 0 before any reply
    std::string RigMode;         ///< empty after Test until a reply
    std::uint8_t ReadPhase = 0;  ///< 1: the next tick reads, else it sends
    std::uint8_t ModeTurn = 0;   ///< of radios that alternate: 1 when the frequency was asked for last
    std::uint8_t VfoDigit = kNoVfoYet;

    bool polls = false;           ///< from Test to End Test or a command that failed; also while the poll rests
    int missedPolls = 0;          ///< in a row, without a reply that could be decoded
    Tick heardAt = 0;             ///< the last reply that was decoded, or the begin of polling
    bool lost = false;            ///< nothing has been heard for too long
    bool portGone = false;        ///< an operation of the port has failed; it is closed until its device is there again
    bool frequencyHeard = false;  ///< RigFrequency was decoded since polling began and since the radio was lost
    bool commanding = false;      ///< a command is under way: no poll tick falls between its steps
};

}  // namespace tallyhut
