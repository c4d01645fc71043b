// An engine with a console window of its own, and no result. It ends when that window has been in front, of which it
// leaves a file as a witness, or after five seconds.
#include <windows.h>

#include <cstdio>

int main() {
    constexpr ULONGLONG limit = 5000;
    // One that it was started with may have no window.
    FreeConsole();
    AllocConsole();
    const ULONGLONG start = GetTickCount64();
    while (GetForegroundWindow() != GetConsoleWindow()) {
        if (GetTickCount64() - start > limit) return 1;
        Sleep(10);
    }
    if (std::FILE* witness = std::fopen("console.txt", "w")) std::fclose(witness);
    // Time for the window that is covered to learn of it.
    Sleep(200);
    return 0;
}
