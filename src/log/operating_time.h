#pragma once

#include <cstdint>

namespace tallyhut {

/// The clock of the operating time.
struct OperatingTime {
    std::uint8_t gTimeOn = 0;  ///< 1 while the clock runs

    void cmdLogOn_Click() { gTimeOn = gTimeOn == 0 ? 1 : 0; }
};

}  // namespace tallyhut
