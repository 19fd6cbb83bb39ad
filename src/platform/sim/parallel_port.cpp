#include "platform/sim/parallel_port.h"

namespace tallyhut::sim {

void ParallelPorts::Out(int address, unsigned char value) {
    if (written.size() == 2 * kKept) {
        written.erase(written.begin(), written.begin() + kKept);
    }
    written.push_back({.at = clock.TickUs(), .address = address, .value = value});
    onOut(address, value);
}

std::string ParallelPorts::Meaning(int base) {
    const auto told = meanings.find(base);
    return told != meanings.end() ? told->second : "simulated";
}

}  // namespace tallyhut::sim
