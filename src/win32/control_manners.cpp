#include "win32/control_manners.h"

#include <commctrl.h>

namespace varno::win32 {

namespace {

constexpr UINT_PTR wheelSubclass = 1;
constexpr UINT_PTR reachSubclass = 2;

LRESULT CALLBACK wheelProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    const bool wheel = message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
    if (wheel && SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0) == FALSE)
        return DefWindowProcW(control, message, wParam, lParam);
    if (message == WM_NCDESTROY) RemoveWindowSubclass(control, wheelProc, wheelSubclass);
    return DefSubclassProc(control, message, wParam, lParam);
}

LRESULT CALLBACK reachProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(control, reachProc, reachSubclass);
    const LRESULT result = DefSubclassProc(control, message, wParam, lParam);
    const bool byKey = message == WM_SETFOCUS && GetKeyState(VK_LBUTTON) >= 0;
    const bool byClick = message == WM_LBUTTONUP && GetFocus() == control &&
                         SendMessageW(control, CB_GETDROPPEDSTATE, 0, 0) == FALSE;
    if (byKey || byClick)
        SendMessageW(GetParent(control), controlReached, 0, reinterpret_cast<LPARAM>(control));
    return result;
}

} // namespace

void passWheelOn(HWND control) {
    SetWindowSubclass(control, wheelProc, wheelSubclass, 0);
}

void tellWhenReached(HWND control) {
    SetWindowSubclass(control, reachProc, reachSubclass, 0);
}

} // namespace varno::win32
