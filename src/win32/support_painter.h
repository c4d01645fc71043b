#pragma once

#include <windows.h>

namespace varno::win32 {

/// Paints a support button. It is drawn here because a button of six pixels that Windows draws has an edge that hardly
/// stands out from the ground; this one has the colour of the text, which does in every colour scheme.
void paintSupport(HDC dc, const RECT& box, int dpi, bool pressed);

} // namespace varno::win32
