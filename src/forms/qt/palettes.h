#pragma once

#include <QPalette>

namespace tallyhut {

/// The program's own palettes, for whoever wants another look than the desktop gives.
QPalette LightPalette();
QPalette DarkPalette();

}  // namespace tallyhut
