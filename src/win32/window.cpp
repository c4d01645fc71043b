#include "win32/window.h"

#include <commctrl.h>

#include "win32/resource_ids.h"
#include "win32/strings.h"

namespace varno::win32 {

HINSTANCE programInstance() {
    return GetModuleHandleW(nullptr);
}

HWND createControl(HWND parent, int id, const wchar_t* className, std::string_view text, DWORD style,
                   DWORD exStyle, void* parameter) {
    return CreateWindowExW(exStyle, className, wide(text).c_str(), WS_CHILD | style, 0, 0, 0, 0, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), programInstance(), parameter);
}

RECT workAreaOf(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

void setPlace(HWND window, int x, int y, int width, int height) {
    SetWindowPos(window, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void dispatch(WindowHost& host, MSG& message) {
    if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) {
        for (const HWND tip : host.tips())
            SendMessageW(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
    }
    if (host.translate(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

Window::~Window() {
    destroy();
}

void Window::registerClass(const wchar_t* className) {
    WNDCLASSEXW info{};
    info.cbSize = sizeof info;
    if (GetClassInfoExW(programInstance(), className, &info)) return;
    info = {};
    info.cbSize = sizeof info;
    info.lpfnWndProc = proc;
    info.hInstance = programInstance();
    info.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    info.hIcon = LoadIconW(programInstance(), MAKEINTRESOURCEW(idProgramIcon));
    // A colour by its number is looked up whenever it is painted, so that it follows what the user chooses meanwhile.
    info.hbrBackground = reinterpret_cast<HBRUSH>(INT_PTR{COLOR_BTNFACE + 1});
    info.lpszClassName = className;
    RegisterClassExW(&info);
}

void Window::create(const wchar_t* className, const std::string& text, DWORD style, DWORD exStyle,
                    HWND parent, HMENU menu, Place place) {
    registerClass(className);
    CreateWindowExW(exStyle, className, wide(text).c_str(), style, place.x, place.y, place.width,
                    place.height, parent, menu, programInstance(), this);
}

void Window::destroy() {
    if (handle_ == nullptr) return;
    const HWND window = handle_;
    // A window being destroyed must not run rules: from here on its messages go past the object.
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    handle_ = nullptr;
    DestroyWindow(window);
}

void Window::bringForward() {
    ShowWindow(handle_, IsIconic(handle_) ? SW_RESTORE : SW_SHOW);
    SetForegroundWindow(handle_);
}

bool Window::restoreFocus() {
    if (lastFocus_ == nullptr || !IsWindow(lastFocus_)) return false;
    SetFocus(lastFocus_);
    return true;
}

bool Window::activationChanged(WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) != WA_INACTIVE) return host_.activation().activated(this);
    const auto next = reinterpret_cast<HWND>(lParam);
    host_.activation().deactivated(next == nullptr ||
                                   GetWindowThreadProcessId(next, nullptr) != GetCurrentThreadId());
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(handle_, focus)) lastFocus_ = focus;
    return false;
}

LRESULT Window::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return defaultProc(message, wParam, lParam);
}

LRESULT Window::defaultProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(handle_, message, wParam, lParam);
}

LRESULT CALLBACK Window::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* info = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        void* self = info->lpCreateParams;
        if ((GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_MDICHILD) != 0) {
            self = reinterpret_cast<void*>(static_cast<const MDICREATESTRUCTW*>(self)->lParam);
        }
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        static_cast<Window*>(self)->handle_ = window;
    }
    auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        const LRESULT result = self->defaultProc(message, wParam, lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        self->handle_ = nullptr;
        return result;
    }
    LRESULT result = 0;
    self->host_.guarded([&] {
        if (message == WM_GETOBJECT && self->spoken_) {
            const auto answer = self->spoken_->answer(window, wParam, lParam);
            result = answer ? *answer : self->defaultProc(message, wParam, lParam);
            return;
        }
        result = self->onMessage(message, wParam, lParam);
    });
    return result;
}

} // namespace varno::win32
