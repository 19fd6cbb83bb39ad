#pragma once

#include "rig/rig_reply.h"

namespace tallyhut {

// Radios that answer in letters and decimal digits. Replies are searched for, so they may stand in any order and amid
// anything.

/// "FA00014200000;": the first two letters of the frequency string, then 11 digits of hertz.
RigReading ReadFaMd(const RigReply& reply);
/// "MD3;"
RigReading ReadMdDigit(const RigReply& reply);
/// "IF00014200000 ...;": frequency, mode and VFO in one reply.
RigReading ReadIfBlock(const RigReply& reply);
/// "FA14200000;" and "MD03;", of which each may come alone.
RigReading ReadDualCommand(const RigReply& reply);
/// "FA014200000;" and "MD03;", of which each may come alone. A reply that is cut, or of another length, says nothing: a
/// shorter number would be another frequency.
RigReading ReadNineDigitCommand(const RigReply& reply);
/// "@AF14200000" and a carriage return.
RigReading ReadOrionFrequency(const RigReply& reply);
/// "@RMM3" and a carriage return.
RigReading ReadOrionMode(const RigReply& reply);

}  // namespace tallyhut
