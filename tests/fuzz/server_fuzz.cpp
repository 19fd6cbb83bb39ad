#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tests/fuzz/server_inputs.h"

/// Called by the fuzzer's own main program with one input after the other: as it is, and as the body of an answer whose
/// length is right, which a fuzzer would hardly find.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes{reinterpret_cast<const char*>(data), size};
    const std::string head = "HTTP/1.1 200 OK\r\nContent-length: " + std::to_string(size) + "\r\n\r\n";
    if (!tallyhut::TakesServerInput(bytes) || !tallyhut::TakesServerInput(head + bytes)) {
        std::abort();
    }
    return 0;
}
