#include "driver/mouse.h"

#include <initializer_list>
#include <vector>

#include "driver/wait.h"

namespace varno::gui::mouse {

namespace {

// Moved once more together with what is pressed: the display may still report where the pointer was before, and a
// window that comes up below the pointer makes it report its place again.
void sendAt(LONG x, LONG y, std::initializer_list<DWORD> actions, int data = 0) {
    SetCursorPos(static_cast<int>(x), static_cast<int>(y));
    constexpr LONG wholeScreen = 65536;
    const LONG width = GetSystemMetrics(SM_CXSCREEN);
    const LONG height = GetSystemMetrics(SM_CYSCREEN);
    std::vector<INPUT> inputs(1);
    inputs[0].mi.dx = (x * wholeScreen + wholeScreen / 2) / width;
    inputs[0].mi.dy = (y * wholeScreen + wholeScreen / 2) / height;
    inputs[0].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    for (const DWORD action : actions) {
        INPUT input{};
        input.mi.dwFlags = action;
        input.mi.mouseData = static_cast<DWORD>(data);
        inputs.push_back(input);
    }
    for (INPUT& input : inputs)
        input.type = INPUT_MOUSE;
    const auto count = static_cast<UINT>(inputs.size());
    if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) throw GuiError("the mouse cannot be used");
}

void clickThere(LONG x, LONG y) {
    sendAt(x, y, {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP});
}

RECT onScreen(const Control& control) {
    RECT box{};
    GetWindowRect(control.handle(), &box);
    return box;
}

} // namespace

void click(const Control& control) {
    const RECT box = onScreen(control);
    clickThere((box.left + box.right) / 2, (box.top + box.bottom) / 2);
}

void clickUntil(const std::function<bool()>& arrived, const std::function<void()>& click) {
    constexpr DWORD shortWait = 3'000;
    int clicks = 0;
    do
        click();
    while (!waitUntil(arrived, nullptr, shortWait) && ++clicks < 5);
}

void clickInto(const Program& program, const Control& control) {
    clickUntil([&] { return program.focused() == control; }, [&] { click(control); });
}

void restOn(const Control& control, int hundredths) {
    const RECT box = onScreen(control);
    const LONG x = box.left + (box.right - box.left) * hundredths / 100;
    // A step beside it first: only a pointer that moves is noticed.
    for (const LONG place : {x - 1, x})
        sendAt(place, (box.top + box.bottom) / 2, {});
}

void clickTitle(const Control& window) {
    const RECT box = onScreen(window);
    clickThere(box.left + (box.right - box.left) / 3, box.top + GetSystemMetrics(SM_CYFIXEDFRAME) + 6);
}

void wheel(const Control& control, int notches) {
    const RECT box = onScreen(control);
    sendAt((box.left + box.right) / 2, (box.top + box.bottom) / 2, {MOUSEEVENTF_WHEEL},
           notches * WHEEL_DELTA);
}

} // namespace varno::gui::mouse
