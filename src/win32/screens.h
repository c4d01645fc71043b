#pragma once

#include <windows.h>

#include <vector>

#include "controls/window_place.h"

namespace varno::win32 {

/// The screens that there are now.
std::vector<Screen> screens();
/// Where a window stands, or would stand if it were not maximized or minimized.
WindowPlace placeOf(HWND window, int dpi);

} // namespace varno::win32
