#pragma once

#include <windows.h>

#include "win32/unique.h"

namespace varno::win32 {

/// Dots per inch of a window. The environment variable VARNO_DPI overrides it, so that scaling can be tried
/// without a second monitor.
int dpiOf(HWND window);
/// The same of a screen.
int dpiOf(HMONITOR monitor);

/// Twips to pixels at a resolution, rounded to nearest.
inline int pixels(int twips, int dpi) {
    return MulDiv(twips, dpi, 1440);
}

enum class FontRole { text, symbol, subscript, heading, bold };
inline constexpr int fontRoles = 5;

/// The user's message font at a resolution.
UniqueFont systemFont(int dpi, FontRole role = FontRole::text);

/// A font of a face at a size in points.
UniqueFont fontOf(const wchar_t* face, int points, int dpi);

/// The same at a character height (negative) or cell height (positive) in the unit of the device.
UniqueFont fontOfHeight(const wchar_t* face, int height);

} // namespace varno::win32
