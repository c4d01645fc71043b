#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// Names a control for screen readers, which otherwise take the label in front of it: the right one only for
/// the first box of a row. With a role (ROLE_SYSTEM_...) where the control is not what its class says; an empty name and
/// role 0 leave that of the system.
void nameForScreenReaders(HWND control, const std::string& name, long role = 0);

} // namespace varno::win32
