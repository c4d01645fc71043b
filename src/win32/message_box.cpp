#include "win32/message_box.h"

#include "win32/strings.h"

namespace varno::win32 {

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

} // namespace

MessageAnswer WindowsMessageBoxes::show(const std::string& text, int style, const std::string& title) {
    return static_cast<MessageAnswer>(
        MessageBoxW(ownerOfMessage(), wide(text).c_str(), wide(title).c_str(), static_cast<UINT>(style)));
}

} // namespace varno::win32
