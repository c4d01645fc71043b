#include "win32/balloon.h"

#include <commctrl.h>

#include "win32/strings.h"

namespace varno::win32 {

namespace {

constexpr UINT_PTR endOfStay = 1;
constexpr UINT stay = 10000; // ms

TOOLINFOW toolOf(HWND owner) {
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    tool.hwnd = owner;
    tool.uId = 1;
    return tool;
}

} // namespace

Balloon::~Balloon() {
    if (tip_ != nullptr) DestroyWindow(tip_);
}

void Balloon::show(HWND control, const std::string& text) {
    if (tip_ != nullptr) return;
    // A tooltip belongs to the window that it lies above; the timer is this object's own.
    if (!exists()) create(L"VarnoBalloon", "", 0, 0, HWND_MESSAGE, nullptr, {0, 0, 0, 0});
    const HWND owner = GetAncestor(control, GA_ROOT);
    tip_ =
        CreateWindowExW(WS_EX_TRANSPARENT, TOOLTIPS_CLASSW, nullptr,
                        WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP | TTS_BALLOON, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, programInstance(), nullptr);
    std::wstring words = wide(text);
    TOOLINFOW tool = toolOf(owner);
    tool.lpszText = words.data();
    SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    // With a limit of width the text has lines.
    SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, GetSystemMetrics(SM_CXSCREEN));
    RECT box;
    GetWindowRect(control, &box);
    SendMessageW(tip_, TTM_TRACKPOSITION, 0, MAKELPARAM(box.left + (box.bottom - box.top), box.bottom));
    SendMessageW(tip_, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    SetTimer(handle(), endOfStay, stay, nullptr);
}

void Balloon::hide() {
    if (tip_ == nullptr) return;
    KillTimer(handle(), endOfStay);
    DestroyWindow(tip_);
    tip_ = nullptr;
}

LRESULT Balloon::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER) {
        hide();
        return 0;
    }
    return defaultProc(message, wParam, lParam);
}

} // namespace varno::win32
