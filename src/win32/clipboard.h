#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// The text on the clipboard, empty when there is none. UTF-8.
std::string clipboardText(HWND owner);
/// Another program may hold the clipboard; then it stays as it is.
void setClipboardText(HWND owner, const std::string& text);

/// A picture in both its kinds, which belong to the clipboard from here on.
void setClipboardPicture(HWND owner, HENHMETAFILE metafile, HBITMAP bitmap);

} // namespace varno::win32
