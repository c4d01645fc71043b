#include "driver/wait.h"

namespace varno::gui {

bool waitUntil(const std::function<bool()>& done, HANDLE process, DWORD limit) {
    constexpr DWORD step = 10;
    const ULONGLONG start = GetTickCount64();
    const DWORD handles = process != nullptr ? 1 : 0;
    while (!done()) {
        if (GetTickCount64() - start > limit) return false;
        const DWORD woken = MsgWaitForMultipleObjects(handles, &process, FALSE, step, 0);
        // Its last act may be what is waited for.
        if (handles == 1 && woken == WAIT_OBJECT_0) return done();
    }
    return true;
}

} // namespace varno::gui
