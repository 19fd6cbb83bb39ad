#pragma once

#include "rig/server_dialect.h"

namespace tallyhut {

/// "Hamlib (rigctld)": a line a request, in the extended manner, whose answers name what was asked and end in a line of
/// their own.
extern const ServerDialect kRigctld;

}  // namespace tallyhut
