#pragma once

#include "rig/server_dialect.h"

namespace tallyhut {

/// "flrig": calls in XML, over one connection of HTTP that is kept.
extern const ServerDialect kFlrig;

}  // namespace tallyhut
