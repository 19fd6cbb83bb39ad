#pragma once

#include <string_view>

#include "toolkit/controls.h"

namespace tallyhut {

/// The terminal of the setup: what comes from the source, and what becomes of the connection.
struct SpotTerminal {
    TextBox& box;

    void Replace(std::string_view text);
    /// The view follows the text, unless the operator has moved the caret to read what is above.
    void Append(std::string_view text);
    /// A text that came before stands there, not far above.
    bool HasShown(std::string_view text) const;
};

}  // namespace tallyhut
