#pragma once

#include <string>

namespace tallyhut {

/// 8-bit text in and out; characters beyond Latin-1 are dropped on the way in.
struct Clipboard {
    virtual ~Clipboard() = default;

    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
};

}  // namespace tallyhut
