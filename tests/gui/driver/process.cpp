#include "driver/process.h"

#include <psapi.h>

#include "driver/wait.h"

namespace varno::gui {

namespace {

struct Visible {
    DWORD process;
    std::vector<Control> found;
};

BOOL CALLBACK addVisible(HWND window, LPARAM data) {
    auto& visible = *reinterpret_cast<Visible*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == visible.process && IsWindowVisible(window)) visible.found.emplace_back(window);
    return TRUE;
}

} // namespace

std::vector<Control> visibleWindows(HANDLE process) {
    Visible visible{GetProcessId(process), {}};
    EnumWindows(addVisible, reinterpret_cast<LPARAM>(&visible));
    return visible.found;
}

std::size_t ownMemory(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!GetProcessMemoryInfo(process, &counters, sizeof counters)) {
        throw GuiError("the program does not tell its memory");
    }
    return counters.PagefileUsage;
}

} // namespace varno::gui
