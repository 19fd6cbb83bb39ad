#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tests/fuzz/wave_inputs.h"

/// A file of any bytes is refused, or is what is said of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!tallyhut::TakesWaveInput({reinterpret_cast<const char*>(data), size})) {
        std::abort();
    }
    return 0;
}
