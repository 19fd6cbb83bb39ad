#pragma once

#include <string>

namespace tallyhut {

/// Where a port's control register stands, from its base address. Its lowest bit is the line that keys.
inline constexpr int kControlRegister = 2;
inline constexpr unsigned char kParallelKeyDown = 3;
inline constexpr unsigned char kParallelKeyUp = 2;

/// The parallel ports of the machine, by addresses such as 0x378.
struct ParallelPorts {
    virtual ~ParallelPorts() = default;

    /// Writes a byte to a port's control register, whose address is the port's base plus kControlRegister. Silent where
    /// there is no such port, or no right to it.
    virtual void Out(int address, unsigned char value) = 0;
    /// What stands behind a base address at this moment, or which right to it is missing, as the operator reads it.
    /// What has failed there is tried anew by the next Out.
    virtual std::string Meaning(int base) = 0;
};

}  // namespace tallyhut
