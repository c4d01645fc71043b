#pragma once

#include <windows.h>

#include <string>

namespace varno::win32 {

/// Names a control for screen readers, which otherwise take the label in front of it: the right one only for
/// the first box of a row. Does nothing where Windows offers no such annotation.
void nameForScreenReaders(HWND control, const std::string& name);

} // namespace varno::win32
