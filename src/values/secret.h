#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// Writes zeros over what the text's memory holds from a place on, also behind its end, and cuts the text there. The
/// text keeps its memory, and nothing of what stood there can be read from it.
///
/// @param from  0 to the text's size
void OverwriteFrom(std::string& text, std::size_t from);

/// Puts more behind the text. Where that wants other memory, zeros are left in what the text had.
void AppendSecret(std::string& text, std::string_view more);

/// A text whose memory is overwritten when it ends.
struct Secret {
    Secret() = default;
    /// Takes the text over, and leaves nothing of it there.
    explicit Secret(std::string&& from) {
        text.swap(from);
        OverwriteFrom(from, 0);  // a short one was copied
    }
    ~Secret() { OverwriteFrom(text, 0); }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    Secret(Secret&&) = delete;
    Secret& operator=(Secret&&) = delete;

    std::string text;
};

}  // namespace tallyhut
