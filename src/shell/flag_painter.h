#pragma once

#include "win32/gdi_canvas.h"

namespace varno {

/// Paints the button of flag 0..6. A pressed one is drawn a little smaller, the focused one with the focus frame.
void paintFlag(HDC dc, const RECT& box, int flag, bool pressed, bool focused);

} // namespace varno
