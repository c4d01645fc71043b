#pragma once

#include <windows.h>

#include "controls/control_spec.h"

namespace varno::win32 {

/// The control of a window's table, not placed yet.
HWND createControl(HWND parent, const ControlSpec& spec);

bool isPushButton(HWND control);
bool isLineEdit(ControlKind kind);
/// Scrolls nothing of its own.
bool keepsNoWheel(ControlKind kind);

} // namespace varno::win32
