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
    ++number_;
    const std::string_view line = text_.substr(at_, lineFeed_ - at_);
    const std::size_t length = std::min(line.find('\r'), line.size());
    at_ += length;
    at_ += at_ < lineFeed_ && at_ + 1 == lineFeed_ ? 2 : 1;  // CR LF ends one line
    at_ = std::min(at_, text_.size());
    if (at_ > lineFeed_) {
        FindLineFeed();
    }
    return Bare(line.substr(0, length));
}

void TextLines::FindLineFeed() {
    lineFeed_ = std::min(text_.find('\n', at_), text_.size());
}

}  // namespace tallyhut
