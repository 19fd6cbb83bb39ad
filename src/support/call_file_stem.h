#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// What files of a station are named after: the call up to the first character that is no digit and no upper-case
/// letter; "YourCall" if that leaves nothing.
std::string CallToFileStem(std::string_view call);

}  // namespace tallyhut
