#pragma once

#include <windows.h>

namespace varno::win32 {

/// Sets the text of a text box of one line in the middle of its height, where the label beside it has its own. Of itself
/// Windows sets it at the top, which shows as soon as the box is scaled.
///
/// The number in a box of ES_RIGHT is shown whole: one that is too wide is drawn in a smaller face. One that is too wide
/// for that too ends in an ellipsis as long as the box has not the focus, and the box sends `numberCut`.
void dressLineEdit(HWND edit);

/// Sent to the window of the box in lParam: its number is to be shown beside it (wParam TRUE), or no longer.
inline constexpr UINT numberCut = WM_APP + 4;

} // namespace varno::win32
