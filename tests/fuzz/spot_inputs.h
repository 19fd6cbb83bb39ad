#pragma once

#include <string_view>

namespace tallyhut {

/// Hands the bytes to everything of the spots that reads what came over the air or the net, as one line, as a post and
/// as a call. Whatever they are, nothing may crash; false where a text comes out that no display can take.
bool TakesSpotInput(std::string_view bytes);

}  // namespace tallyhut
