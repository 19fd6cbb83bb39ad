#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tests/fuzz/cluster_inputs.h"

/// Called by the fuzzer's own main program with one input after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!tallyhut::TakesClusterInput({reinterpret_cast<const char*>(data), size})) {
        std::abort();
    }
    return 0;
}
