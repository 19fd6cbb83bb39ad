#pragma once

#include "platform/keyring.h"

namespace tallyhut {

/// The keyring of the desktop, over its secret service.
struct SecretService : Keyring {};

}  // namespace tallyhut
