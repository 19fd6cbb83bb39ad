#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to what cuts a TNC's lines and to what shows text. Whatever they are, nothing may crash; false where
/// a cut changes a line, a line is lost or too long, or something is shown that is no text.
bool TakesTerminalInput(std::string_view bytes);

}  // namespace tallyhut
