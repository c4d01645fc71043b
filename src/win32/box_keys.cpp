#include "win32/box_keys.h"

#include <commctrl.h>

namespace varno::win32 {

namespace {

constexpr UINT_PTR keysSubclass = 2;
constexpr WPARAM escapeLetter = 0x1B;

bool isEscape(const MSG* message) {
    return message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE;
}

bool isNumberBox(HWND box) {
    return (GetWindowLongPtrW(box, GWL_STYLE) & ES_RIGHT) != 0;
}

LRESULT CALLBACK boxProc(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto& keys = *reinterpret_cast<BoxKeys*>(data);
    const int id = GetDlgCtrlID(box);
    switch (message) {
    case WM_LBUTTONDOWN:
        if (GetFocus() == box || !isNumberBox(box)) break;
        // Handed on, the click would place the caret.
        SetFocus(box);
        SendMessageW(box, EM_SETSEL, 0, -1);
        return 0;
    case WM_GETDLGCODE: {
        const LRESULT code = DefSubclassProc(box, message, wParam, lParam);
        const bool takes = isEscape(reinterpret_cast<const MSG*>(lParam)) && keys.isTyped(id);
        return takes ? code | DLGC_WANTMESSAGE : code;
    }
    case WM_KEYDOWN:
        if (wParam != VK_ESCAPE || !keys.isTyped(id)) break;
        keys.takeBack(id);
        SendMessageW(box, EM_SETSEL, 0, -1);
        return 0;
    case WM_CHAR:
        // The box has no use for the letter of the key, and sounds.
        if (wParam == escapeLetter) return 0;
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(box, boxProc, keysSubclass);
        break;
    default:
        break;
    }
    return DefSubclassProc(box, message, wParam, lParam);
}

} // namespace

void watchBox(HWND box, BoxKeys& keys) {
    SetWindowSubclass(box, boxProc, keysSubclass, reinterpret_cast<DWORD_PTR>(&keys));
}

} // namespace varno::win32
