#pragma once

#include <QPalette>

namespace tallyhut {

/// The program's own palettes, for an operator who wants another look than the desktop's.
QPalette LightPalette();
QPalette DarkPalette();

}  // namespace tallyhut
