#pragma once

#include <windows.h>

#include <functional>

#include "win32/unique.h"

namespace varno::win32 {

/// Draws small pictures with smooth edges, which GDI alone does not: `paint` draws on a device context of
/// `scale` times the size.
inline constexpr int smoothScale = 4;
using SmoothPaint = std::function<void(HDC dc, int width, int height)>;

/// Over what is there in `box`.
void drawSmooth(HDC dc, const RECT& box, COLORREF background, const SmoothPaint& paint);

/// A bitmap with a transparent background; `faded` is how it looks when it does nothing.
UniqueBitmap smoothBitmap(int width, int height, const SmoothPaint& paint, bool faded);
/// A square icon with a transparent background.
UniqueIcon smoothIcon(int size, const SmoothPaint& paint);

} // namespace varno::win32
