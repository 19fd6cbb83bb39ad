#pragma once

#include <string_view>

#include "platform/dialogs.h"

namespace tallyhut {

/// "0.1.0"
std::string_view ProgramVersion();

/// What the program says of itself.
MessageBox AboutBox();

}  // namespace tallyhut
