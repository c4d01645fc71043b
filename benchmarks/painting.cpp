#include "painting.h"

#include <algorithm>

#include "driver/wait.h"

namespace varno::benchmarks {

namespace {

BOOL CALLBACK add(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<gui::Control>*>(list)->emplace_back(window);
    return TRUE;
}

LONGLONG ticks() {
    LARGE_INTEGER now{};
    QueryPerformanceCounter(&now);
    return now.QuadPart;
}

} // namespace

Stopwatch::Stopwatch() {
    start_.QuadPart = ticks();
}

double Stopwatch::elapsed() const {
    LARGE_INTEGER frequency{};
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(ticks() - start_.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::vector<gui::Control> treeOf(const gui::Control& window) {
    std::vector<gui::Control> all{window};
    EnumChildWindows(window.handle(), add, reinterpret_cast<LPARAM>(&all));
    return all;
}

bool unpainted(const std::vector<gui::Control>& windows) {
    return std::ranges::any_of(windows, [](const gui::Control& window) {
        return GetUpdateRect(window.handle(), nullptr, FALSE) != FALSE;
    });
}

void waitPainted(const std::vector<gui::Control>& windows) {
    waitAwake(windows.front(), [&] { return !unpainted(windows); });
    windows.front().send(WM_NULL);
}

void waitAwake(const gui::Control& window, const std::function<bool()>& done) {
    const Stopwatch watch;
    while (!done()) {
        if (watch.elapsed() > gui::patience) throw gui::GuiError("the program does not get there");
        window.send(WM_NULL);
    }
}

} // namespace varno::benchmarks
