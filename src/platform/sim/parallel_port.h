#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/parallel_port.h"

namespace tallyhut::sim {

/// Parallel ports at every address. Records what is written, the latest, as many as kKept at least and twice that at
/// most.
struct ParallelPorts : tallyhut::ParallelPorts {
    explicit ParallelPorts(const tallyhut::Clock& machineClock) : clock{machineClock} {}

    void Out(int address, unsigned char value) override;
    std::string Meaning(int base) override;

    const tallyhut::Clock& clock;

    static constexpr std::size_t kKept = 4'096;

    struct Written {
        Microtick at = 0;
        int address = 0;
        unsigned char value = 0;

        bool operator==(const Written&) const = default;
    };
    std::vector<Written> written;

    std::map<int, std::string> meanings;  ///< of the bases that are told otherwise than as simulated

    /// Told as it happens.
    std::function<void(int address, unsigned char value)> onOut = [](int, unsigned char) {};
};

}  // namespace tallyhut::sim
