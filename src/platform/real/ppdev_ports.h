#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/parallel_port.h"
#include "platform/real/descriptor.h"

namespace tallyhut {

/// Where the system keeps its parallel ports and tells their addresses.
struct ParallelFolders {
    std::string devices = "/dev";
    std::string ports = "/proc/sys/dev/parport";
};

/// The parallel ports of the machine: through the system's driver ppdev where it knows a port of that base, else, on
/// processors that have such addresses, directly where the program has the right to. A port is opened by the first byte
/// for it and held until the end, which leaves its key up. One that could not be opened is not tried again until
/// another is asked for.
struct PpdevPorts : ParallelPorts {
    explicit PpdevPorts(ParallelFolders systemFolders = {}) : folders{std::move(systemFolders)} {}
    PpdevPorts(const PpdevPorts&) = delete;
    PpdevPorts& operator=(const PpdevPorts&) = delete;
    PpdevPorts(PpdevPorts&&) = delete;
    PpdevPorts& operator=(PpdevPorts&&) = delete;
    ~PpdevPorts() override;

    const ParallelFolders folders;

    void Out(int address, unsigned char value) override;
    std::string Meaning(int base) override;

private:
    /// The system's number of the port with that base address.
    std::optional<int> NumberOf(int base) const;
    bool Hold(int base);
    bool MayWriteDirectly(int base) const;

    std::map<int, Descriptor> held_;  ///< by base; none where the port is written to directly
    std::optional<int> failed_;       ///< base that is not tried again
};

}  // namespace tallyhut
