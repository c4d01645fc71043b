// An engine that writes no result. It ends when its console window has come to the front, or after five seconds.
#include <windows.h>

int main() {
    constexpr ULONGLONG limit = 5000;
    const ULONGLONG start = GetTickCount64();
    while (GetForegroundWindow() != GetConsoleWindow() && GetTickCount64() - start < limit)
        Sleep(10);
    // As a user sees it: for a moment at least.
    Sleep(200);
    return GetForegroundWindow() == GetConsoleWindow() ? 0 : 1;
}
