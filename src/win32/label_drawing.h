#pragma once

#include <windows.h>

namespace varno::win32 {

/// Draws a text of several lines. They are broken a little before its edge: at some scalings letters are drawn wider than
/// Windows measures them, and the last one of a line would be cut.
void drawParagraph(const DRAWITEMSTRUCT& item);

/// Draws a letter with what stands behind the "_" as its subscript.
void drawSymbol(const DRAWITEMSTRUCT& item, HFONT lettersFont, HFONT subscriptFont);

} // namespace varno::win32
