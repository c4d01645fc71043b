#pragma once

#include <windows.h>

namespace varno::win32 {

/// Draws the frame and the caption of a group itself. Of itself a group leaves as much of its frame out as the caption is
/// said to be wide: at some scalings its last letter is cut off, at others there is a gap behind it.
void drawGroup(HWND group);

/// Where the caption begins, from the frame's left edge, and the room on either side of it, at 100 %.
inline constexpr int captionIndent = 9;
inline constexpr int captionRoom = 3;

} // namespace varno::win32
