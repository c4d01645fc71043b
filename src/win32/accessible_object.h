#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// Answers a screen reader that asked for a control's object (`asked` is WM_GETOBJECT's wParam): with a name, when it is
/// not empty, a role (ROLE_SYSTEM_...; 0 for the system's own), and everything else as the system does. For systems that
/// take no name and no role for a control.
LRESULT answerScreenReader(HWND control, WPARAM asked, const std::wstring& name, long role);

} // namespace varno::win32
