#pragma once

#include "rig/rig_reply.h"

namespace tallyhut {

// Frames of the bus of bytes: FE FE, address to, address from, command, data, FD. An echo of the request runs through
// the same scan and says nothing.

/// Command 03: the frequency in BCD, low pair first.
RigReading ReadIcomFrequency(const RigReply& reply);
/// The same from a radio whose frames have four bytes of digits instead of five.
RigReading ReadIcom735Frequency(const RigReply& reply);
/// Command 04: mode 03 is CW, and every other one phone, CW reversed and RTTY included.
RigReading ReadIcomMode(const RigReply& reply);

}  // namespace tallyhut
