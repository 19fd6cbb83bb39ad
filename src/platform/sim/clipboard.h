#pragma once

#include "platform/clipboard.h"

namespace tallyhut::sim {

struct Clipboard : tallyhut::Clipboard {
    std::string text;

    std::string Text() const override { return text; }
    void SetText(const std::string& newText) override { text = newText; }
};

}  // namespace tallyhut::sim
