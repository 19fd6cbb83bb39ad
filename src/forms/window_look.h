#pragma once

namespace tallyhut {

/// How the windows look: as the desktop does, or always light or dark.
enum class WindowLook { Desktop, Light, Dark };

}  // namespace tallyhut
