#include "values/text_lines.h"

#include <algorithm>

namespace tallyhut {

std::string_view Bare(std::string_view text) {
    const auto isAround = [](char character) {
        return character == ' ' || character == '\t' || character == '\r' || character == '\n';
    };
    while (!text.empty() && isAround(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isAround(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string_view TextLines::Take() {
    const std::size_t length = std::min(rest_.find(end_), rest_.size());
    const std::string_view line = rest_.substr(0, length);
    rest_.remove_prefix(std::min(length + 1, rest_.size()));
    return Bare(line);
}

}  // namespace tallyhut
