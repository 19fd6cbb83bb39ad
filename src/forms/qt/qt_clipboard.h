#pragma once

#include "platform/clipboard.h"

namespace tallyhut {

/// The desktop's clipboard.
struct QtClipboard : Clipboard {
    std::string Text() const override;
    void SetText(const std::string& text) override;
};

}  // namespace tallyhut
