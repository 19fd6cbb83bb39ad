#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tests/fuzz/import_inputs.h"

/// A file of any bytes is read by each reader of foreign logs, and what it gives is a log.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!tallyhut::TakesImportInput({reinterpret_cast<const char*>(data), size})) {
        std::abort();
    }
    return 0;
}
