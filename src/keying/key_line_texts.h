#pragma once

#include "keying/key_line.h"

namespace tallyhut {

/// What stands behind the numbers of a key line, for the operator.
struct KeyLineTexts {
    std::string device;    ///< of the serial port
    std::string parallel;  ///< of the parallel port's address
    std::string note;      ///< what is amiss with what is chosen, or shared with the radio; empty where nothing is
};

/// Looking for devices takes time.
KeyLineTexts TextsOf(const KeyLine& line, const SerialPorts& serialPorts, ParallelPorts& parallelPorts);

}  // namespace tallyhut
