#include "win32/control_manners.h"

#include <memory>

#include "win32/control_layer.h"

namespace varno::win32 {

namespace {

class WheelPassedOn : public ControlLayer {
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        const bool wheel = message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
        if (wheel && SendMessageW(control(), CB_GETDROPPEDSTATE, 0, 0) == FALSE)
            return DefWindowProcW(control(), message, wParam, lParam);
        return below(message, wParam, lParam);
    }
};

class Reached : public ControlLayer {
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = below(message, wParam, lParam);
        const bool byKey = message == WM_SETFOCUS && GetKeyState(VK_LBUTTON) >= 0;
        const bool byClick = message == WM_LBUTTONUP && GetFocus() == control() &&
                             SendMessageW(control(), CB_GETDROPPEDSTATE, 0, 0) == FALSE;
        if (byKey || byClick)
            SendMessageW(GetParent(control()), controlReached, 0, reinterpret_cast<LPARAM>(control()));
        return result;
    }
};

} // namespace

void passWheelOn(HWND control) {
    layOver(control, std::make_unique<WheelPassedOn>());
}

void tellWhenReached(HWND control) {
    layOver(control, std::make_unique<Reached>());
}

} // namespace varno::win32
