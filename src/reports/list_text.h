#pragma once

#include <string>

#include "toolkit/controls.h"

namespace tallyhut {

/// What a list shows, its headings first and then its rows from the last to the first, as lines of cells with tabs
/// between them.
std::string ListAsText(const ListView& list);

}  // namespace tallyhut
