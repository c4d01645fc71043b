// What the keys do that are not a window's own.
#include "shell/application.h"

#include "shell/help_contexts.h"

namespace varno {

bool Application::translate(MSG& message) {
    if (translateHelpKey(message) || translateStepKey(message) || translateRecentKey(message)) return true;
    const HWND root = GetAncestor(message.hwnd, GA_ROOT);
    if (root == results_->viewer.handle()) {
        bool taken = false;
        guarded([&] { taken = results_->viewer.translateOwn(message); });
        if (taken) return true;
    }
    if (root != main_.handle()) return root != nullptr && IsDialogMessageW(root, &message);
    if (TranslateMDISysAccel(main_.mdiClient(), &message)) return true;
    const bool inForm = message.hwnd == form_.handle() || IsChild(form_.handle(), message.hwnd);
    if (!inForm) return translateKeyBeside(message);
    bool taken = true;
    guarded([&] { taken = form_.translateKey(message); });
    return taken || IsDialogMessageW(form_.handle(), &message);
}

bool Application::translateHelpKey(const MSG& message) {
    // Windows posts this one besides the key itself; it would end as WM_HELP and show the help twice.
    constexpr UINT keyF1 = 0x004D;
    if (message.message == keyF1) return true;
    if (message.message != WM_KEYDOWN || message.wParam != VK_F1) return false;
    help_.show(helpTopicOfFocus(message.hwnd), settings_.workFolder);
    return true;
}

// The windows that the case is edited in.
win32::FormWindow* Application::editedIn(HWND root) {
    if (root == main_.handle()) return &form_;
    for (LineLoads* const editor : {lineLoads_.get(), freeLoads_.get()}) {
        if (editor != nullptr && editor->window.handle() == root) return &editor->window;
    }
    return nullptr;
}

// Ctrl+Z and Ctrl+Y. In a box that is being typed in they are the box's own.
bool Application::translateStepKey(const MSG& message) {
    const bool back = message.wParam == 'Z';
    if (message.message != WM_KEYDOWN || (!back && message.wParam != 'Y')) return false;
    if (GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_MENU) < 0 || GetKeyState(VK_SHIFT) < 0) return false;
    win32::FormWindow* const window = editedIn(GetAncestor(message.hwnd, GA_ROOT));
    if (window == nullptr || window->typing()) return false;
    guarded([&] {
        // A row chosen in a list that was not left yet is the last edit.
        window->takeOver();
        back ? steps_.back() : steps_.forward();
    });
    return true;
}

// Ctrl+Shift+O: the toolbar takes no focus, so Shift+F10 does not reach the menu of its button.
bool Application::translateRecentKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != 'O') return false;
    if (GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_SHIFT) >= 0 || GetKeyState(VK_MENU) < 0) return false;
    if (GetAncestor(message.hwnd, GA_ROOT) != main_.handle()) return false;
    guarded([&] { openButtonMenu(main_.belowOpenButton()); });
    return true;
}

// Beside the form stand the flag, which Tab leads to from its end, and behind it the load picture, with the menu of the
// free line loads. Enter presses the flag.
bool Application::translateKeyBeside(const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    if (message.wParam == VK_TAB) {
        const bool backwards = GetKeyState(VK_SHIFT) < 0;
        if (message.hwnd == main_.flagButton() && !backwards) {
            main_.focusLoadPicture();
        } else if (message.hwnd == main_.loadPicture() && backwards) {
            main_.focusFlag();
        } else {
            form_.focusEnd(backwards);
        }
        return true;
    }
    if (message.wParam != VK_RETURN || message.hwnd != main_.flagButton()) return false;
    SendMessageW(message.hwnd, BM_CLICK, 0, 0);
    return true;
}

} // namespace varno
