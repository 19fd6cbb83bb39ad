#pragma once

#include "platform/machine.h"

namespace tallyhut {

/// Whether two port numbers mean one device at this moment, by whatever paths.
bool AreOneDevice(const Machine& machine, int one, int other);

}  // namespace tallyhut
