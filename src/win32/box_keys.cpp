#include "win32/box_keys.h"

#include <memory>

#include "win32/clipboard.h"
#include "win32/control_layer.h"

namespace varno::win32 {

namespace {

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

class WatchedBox : public ControlLayer {
  public:
    explicit WatchedBox(BoxKeys& keys) : keys_(keys) {}

  private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    BoxKeys& keys_;
};

LRESULT WatchedBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND box = control();
    const int id = GetDlgCtrlID(box);
    switch (message) {
    case WM_LBUTTONDOWN:
        if (GetFocus() == box || !isNumberBox(box)) break;
        // Handed on, the click would place the caret.
        SetFocus(box);
        SendMessageW(box, EM_SETSEL, 0, -1);
        return 0;
    case WM_GETDLGCODE: {
        const LRESULT code = below(message, wParam, lParam);
        const bool takes = isEscape(reinterpret_cast<const MSG*>(lParam)) && keys_.isTyped(id);
        return takes ? code | DLGC_WANTMESSAGE : code;
    }
    case WM_KEYDOWN:
        if ((wParam == VK_UP || wParam == VK_DOWN) && keys_.arrow(id, wParam == VK_UP ? -1 : 1)) return 0;
        if (wParam != VK_ESCAPE || !keys_.isTyped(id)) break;
        keys_.takeBack(id);
        SendMessageW(box, EM_SETSEL, 0, -1);
        return 0;
    case WM_CHAR:
        if (takesLetter(box, wParam, keys_)) return 0;
        break;
    case WM_PASTE:
        if (keys_.pasted(id, clipboardText(box))) return 0;
        break;
    default:
        break;
    }
    return below(message, wParam, lParam);
}

class KeysLeftToWindow : public ControlLayer {
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        // Nor does Tab select the whole text.
        if (message == WM_GETDLGCODE) return DLGC_WANTARROWS | DLGC_WANTCHARS;
        return below(message, wParam, lParam);
    }
};

} // namespace

void leaveKeysToWindow(HWND memo) {
    layOver(memo, std::make_unique<KeysLeftToWindow>());
}

void watchBox(HWND box, BoxKeys& keys) {
    layOver(box, std::make_unique<WatchedBox>(keys));
}

} // namespace varno::win32
