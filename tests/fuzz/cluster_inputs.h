#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to what puts a cluster's text together, looks for prompts in it and keeps a password off the screen.
/// Whatever they are, nothing may crash; false where a cut changes what comes out, a line is too long, or something of
/// the password is shown.
bool TakesClusterInput(std::string_view bytes);

}  // namespace tallyhut
