#pragma once

#include "platform/keyring.h"

namespace tallyhut::sim {

/// The simulated keyring.
struct Keyring : tallyhut::Keyring {};

}  // namespace tallyhut::sim
