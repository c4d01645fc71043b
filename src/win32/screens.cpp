#include "win32/screens.h"

#include "win32/dpi.h"
#include "win32/window.h"

namespace varno::win32 {

namespace {

Area areaOf(const RECT& box) {
    return {box.left, box.top, box.right - box.left, box.bottom - box.top};
}

MONITORINFO factsOf(HMONITOR monitor) {
    MONITORINFO facts{};
    facts.cbSize = sizeof facts;
    GetMonitorInfoW(monitor, &facts);
    return facts;
}

BOOL CALLBACK add(HMONITOR monitor, HDC, RECT*, LPARAM out) {
    const RECT work = factsOf(monitor).rcWork;
    reinterpret_cast<std::vector<Screen>*>(out)->push_back({areaOf(work), dpiOf(monitor)});
    return TRUE;
}

} // namespace

std::vector<Screen> screens() {
    std::vector<Screen> found;
    EnumDisplayMonitors(nullptr, nullptr, add, reinterpret_cast<LPARAM>(&found));
    return found;
}

WindowPlace placeOf(HWND window, int dpi) {
    if (!IsZoomed(window) && !IsIconic(window)) {
        RECT box{};
        GetWindowRect(window, &box);
        return {areaOf(box), dpi, false};
    }
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    // Its coordinates begin where the work area does, not the screen.
    const MONITORINFO facts = factsOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
    OffsetRect(&placement.rcNormalPosition, facts.rcWork.left - facts.rcMonitor.left,
               facts.rcWork.top - facts.rcMonitor.top);
    const bool maximized = IsZoomed(window) || (placement.flags & WPF_RESTORETOMAXIMIZED) != 0;
    return {areaOf(placement.rcNormalPosition), dpi, maximized};
}

} // namespace varno::win32
