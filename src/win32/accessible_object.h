#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// Answers screen readers for a control itself: with a name, when it is not empty, a role (ROLE_SYSTEM_...; 0 for the
/// system's own), and everything else as the system does. For systems that take no name and no role for a control.
void answerScreenReaders(HWND control, const std::string& name, long role);

} // namespace varno::win32
