#pragma once

#include <windows.h>

namespace varno::win32 {

/// The control passes the mouse wheel on to what it stands in. Of itself a closed list changes its row and a spin button
/// steps under a wheel that was meant to scroll, and nobody notices. An open list keeps it.
void passWheelOn(HWND control);

/// Sent to the window of a control that `tellWhenReached` was called for, the control in lParam: it has got the focus.
/// After a click that is told when the button is up again; a control that moves under the pointer before that would not
/// be the one that was clicked.
inline constexpr UINT controlReached = WM_APP + 3;
void tellWhenReached(HWND control);

} // namespace varno::win32
