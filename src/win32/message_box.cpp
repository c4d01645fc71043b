#include "base/message_boxes.h"

#include "win32/strings.h"

namespace varno {

namespace {

BOOL CALLBACK takeUsable(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// The window that a message belongs over. While another program is in front, no window of this one is active; a
// box without an owner would come up behind, and the windows would go on taking commands.
HWND ownerOfMessage() {
    HWND owner = GetActiveWindow();
    if (owner == nullptr)
        EnumThreadWindows(GetCurrentThreadId(), takeUsable, reinterpret_cast<LPARAM>(&owner));
    return owner;
}

class WindowsMessageBoxes : public MessageBoxes {
    MessageAnswer show(const std::string& text, int style, const std::string& title) override {
        return static_cast<MessageAnswer>(MessageBoxW(ownerOfMessage(), win32::wide(text).c_str(),
                                                      win32::wide(title).c_str(), static_cast<UINT>(style)));
    }
};

} // namespace

MessageBoxes& systemMessageBoxes() {
    static WindowsMessageBoxes boxes;
    return boxes;
}

} // namespace varno
