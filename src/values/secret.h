#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace tallyhut {

/// Writes zeros over what the text's memory holds from a place on, also behind its end, and cuts the text there. The
/// text keeps its memory, and nothing of what stood there can be read from it.
///
/// @param from  0 to the text's size
void OverwriteFrom(std::string& text, std::size_t from);

/// A text whose memory is overwritten when it ends.
struct Secret {
    explicit Secret(std::string secretText) : text{std::move(secretText)} {}
    ~Secret() { OverwriteFrom(text, 0); }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    Secret(Secret&&) = delete;
    Secret& operator=(Secret&&) = delete;

    std::string text;
};

}  // namespace tallyhut
