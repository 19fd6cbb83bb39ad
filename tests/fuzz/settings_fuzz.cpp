#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "platform/real/ini_text.h"

/// A file of settings of any bytes takes a value of any bytes and gives it back; what else it holds stays. The first
/// byte says how many of the others are the value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tallyhut::IniValue;
    const std::string_view bytes{reinterpret_cast<const char*>(data), size};
    if (bytes.empty()) {
        return 0;
    }
    const std::size_t length = static_cast<unsigned char>(bytes[0]) % bytes.size();
    const std::string_view value = bytes.substr(1, length);
    const std::string_view file = bytes.substr(1 + length);
    const auto other = IniValue(file, "Machine", "Port1");
    const std::string with = tallyhut::WithIniValue(file, "Settings", "Key", value);
    if (IniValue(with, "Settings", "Key") != value || IniValue(with, "Machine", "Port1") != other) {
        std::abort();
    }
    return 0;
}
