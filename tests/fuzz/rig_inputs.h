#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to everything of the radio that reads bytes from outside: every decoder with the strings of every
/// row and with pieces of the bytes themselves, the requests, the settings file and the band plan. Whatever they are,
/// nothing may crash, and every reading must be one that the form can show; false otherwise.
bool TakesRigInput(std::string_view bytes);

}  // namespace tallyhut
