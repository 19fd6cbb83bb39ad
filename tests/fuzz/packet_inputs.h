#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to the client of a packet engine as what the engine sends, whole and in pieces, and what it makes of
/// them to the texts that are shown. Whatever they are, nothing may crash; false where the cuts change what comes out,
/// or a frame comes out that is longer than frames are.
bool TakesPacketInput(std::string_view bytes);

}  // namespace tallyhut
