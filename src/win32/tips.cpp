#include "win32/tips.h"

#include <commctrl.h>

#include "win32/strings.h"
#include "win32/window.h"

namespace varno::win32 {

namespace {

constexpr int widest = 440;
constexpr int stay = 20000; // ms

} // namespace

void Tips::add(HWND control, const std::string& text) {
    addTool(GetParent(control), TTF_IDISHWND | TTF_SUBCLASS, reinterpret_cast<UINT_PTR>(control), {}, text);
}

void Tips::addPart(HWND window, const RECT& part, const std::string& text) {
    addTool(window, TTF_SUBCLASS, ++parts_, part, text);
}

void Tips::addTool(HWND owner, UINT flags, UINT_PTR id, const RECT& part, const std::string& text) {
    if (tip_ == nullptr) {
        tip_ = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                               CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                               GetAncestor(owner, GA_ROOT), nullptr, programInstance(), nullptr);
        // Only with a width does a line end show as one.
        SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, widest);
        SendMessageW(tip_, TTM_SETDELAYTIME, TTDT_AUTOPOP, stay);
    }
    std::wstring words = wide(text);
    TOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = flags;
    tool.hwnd = owner;
    tool.uId = id;
    tool.rect = part;
    tool.lpszText = words.data();
    SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Tips::clear() {
    if (tip_ != nullptr) DestroyWindow(tip_);
    tip_ = nullptr;
    parts_ = 0;
}

} // namespace varno::win32
