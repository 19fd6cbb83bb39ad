#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace tallyhut {

/// Spoken prompts, as the logger needs them; silent until somebody can speak.
struct Prompts {
    std::function<void(std::string_view prompt)> BlindKeyPhone = [](std::string_view /*prompt*/) {};
    std::function<void()> AwaitEnd = [] {};
};

}  // namespace tallyhut
