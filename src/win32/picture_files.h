#pragma once

#include <windows.h>

#include <string>

#include "base/file_calls.h"
#include "drawing/annotated_picture.h"

namespace varno::win32 {

/// Writes the words of a picture onto a device context that its drawing stands on, in the user's font at `fontDpi`.
void drawTexts(HDC dc, const AnnotatedPicture& picture, int dpi, int fontDpi, COLORREF foreground,
               COLORREF ground);

// What other programs take: black on white, whatever colours the windows have.

/// As an enhanced metafile.
Bytes emfOf(const AnnotatedPicture& picture);
/// As a PNG at twice the resolution of the screen that drawings are laid out for.
Bytes pngOf(const AnnotatedPicture& picture);
/// Both kinds onto the clipboard: a metafile and a bitmap.
void copyPicture(HWND owner, const AnnotatedPicture& picture);
/// Asks for a file and writes SVG, EMF or PNG, whatever its ending says. \param name without ending
/// \throws RunTimeError; a file that was there is as it was then.
void savePicture(HWND owner, const AnnotatedPicture& picture, const std::string& name, FileCalls& calls);

} // namespace varno::win32
