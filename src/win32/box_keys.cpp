#include "win32/box_keys.h"

#include <commctrl.h>

#include "win32/clipboard.h"

namespace varno::win32 {

namespace {

constexpr UINT_PTR keysSubclass = 2;
// The letters of keys, as WM_CHAR brings them.
constexpr WPARAM copyLetter = 0x03;
constexpr WPARAM undoLetter = 0x1A;
constexpr WPARAM escapeLetter = 0x1B;

bool isEscape(const MSG* message) {
    return message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE;
}

bool isNumberBox(HWND box) {
    return (GetWindowLongPtrW(box, GWL_STYLE) & ES_RIGHT) != 0;
}

bool isPartSelected(HWND box) {
    DWORD first = 0;
    DWORD last = 0;
    SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return first != last && last - first != static_cast<DWORD>(GetWindowTextLengthW(box));
}

bool copyRow(HWND box, const BoxKeys& keys) {
    if (isPartSelected(box)) return false;
    const auto row = keys.copied(GetDlgCtrlID(box));
    if (row) setClipboardText(box, *row);
    return row.has_value();
}

// True when nothing is left to do with the letter.
bool takesLetter(HWND box, WPARAM letter, const BoxKeys& keys) {
    switch (letter) {
    case copyLetter:
        return copyRow(box, keys);
    case undoLetter:
        SendMessageW(box, EM_UNDO, 0, 0);
        return true;
    case escapeLetter:
        // The box has no use for it, and sounds.
        return true;
    default:
        return false;
    }
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
        if ((wParam == VK_UP || wParam == VK_DOWN) && keys.arrow(id, wParam == VK_UP ? -1 : 1)) return 0;
        if (wParam != VK_ESCAPE || !keys.isTyped(id)) break;
        keys.takeBack(id);
        SendMessageW(box, EM_SETSEL, 0, -1);
        return 0;
    case WM_CHAR:
        if (takesLetter(box, wParam, keys)) return 0;
        break;
    case WM_PASTE:
        if (keys.pasted(id, clipboardText(box))) return 0;
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(box, boxProc, keysSubclass);
        break;
    default:
        break;
    }
    return DefSubclassProc(box, message, wParam, lParam);
}

LRESULT CALLBACK memoProc(HWND memo, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    // Nor does Tab select the whole text.
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS | DLGC_WANTCHARS;
    if (message == WM_NCDESTROY) RemoveWindowSubclass(memo, memoProc, keysSubclass);
    return DefSubclassProc(memo, message, wParam, lParam);
}

} // namespace

void leaveKeysToWindow(HWND memo) {
    SetWindowSubclass(memo, memoProc, keysSubclass, 0);
}

void watchBox(HWND box, BoxKeys& keys) {
    SetWindowSubclass(box, boxProc, keysSubclass, reinterpret_cast<DWORD_PTR>(&keys));
}

} // namespace varno::win32
