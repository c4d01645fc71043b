#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

#include "driver/control.h"

namespace varno::gui {

/// All visible windows of a process that have no parent, the topmost first.
std::vector<Control> visibleWindows(HANDLE process);

/// The number of the process of a program file, once it shows a window of its own; 0 when none comes.
DWORD processOf(const std::string& program);

/// Bytes of memory of its own. Wine says what of it is in use just now (RssAnon and VmSwap in the status of the process
/// below it), Windows what is set aside for it. \throws GuiError.
std::size_t ownMemory(HANDLE process);

} // namespace varno::gui
