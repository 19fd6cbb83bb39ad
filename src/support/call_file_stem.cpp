#include "support/call_file_stem.h"

#include <algorithm>

namespace tallyhut {

std::string CallToFileStem(std::string_view call) {
    const auto isOfStem = [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); };
    std::string stem{call.begin(), std::ranges::find_if_not(call, isOfStem)};
    return stem.empty() ? "YourCall" : stem;
}

}  // namespace tallyhut
