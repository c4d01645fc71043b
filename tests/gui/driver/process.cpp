#include "driver/process.h"

#include <psapi.h>

#include "driver/wait.h"
#include "win32/strings.h"
#include "win32/unique.h"

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

DWORD processOf(const std::string& program) {
    DWORD found = 0;
    waitUntil([&] {
        for (HWND window = GetTopWindow(nullptr); window != nullptr;
             window = GetWindow(window, GW_HWNDNEXT)) {
            DWORD id = 0;
            GetWindowThreadProcessId(window, &id);
            const win32::UniqueHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
            wchar_t path[MAX_PATH] = L"";
            DWORD length = MAX_PATH;
            if (IsWindowVisible(window) && process &&
                QueryFullProcessImageNameW(process.get(), 0, path, &length) &&
                _wcsicmp(path, win32::wide(program).c_str()) == 0)
                found = id;
        }
        return found != 0;
    });
    return found;
}

std::size_t ownMemory(HANDLE process) {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!GetProcessMemoryInfo(process, &counters, sizeof counters)) {
        throw GuiError("the program does not tell its memory");
    }
    return counters.PagefileUsage;
}

} // namespace varno::gui
