#include "shell/help_contexts.h"

#include "shell/help_places.h"
#include "win32/strings.h"

namespace varno {

std::string helpTopicOfFocus(HWND focus) {
    for (HWND window = focus; window != nullptr; window = GetParent(window)) {
        const HWND parent = GetParent(window);
        if (parent != nullptr) {
            std::string own = helpTopicOf(win32::classOf(parent), GetDlgCtrlID(window));
            if (!own.empty()) return own;
        }
        const std::string_view kind = helpTopicOfWindow(win32::classOf(window));
        if (!kind.empty()) return std::string(kind);
    }
    return "oversikt";
}

std::string helpTopicOfRequest(const HELPINFO& request) {
    if (request.iContextType == HELPINFO_MENUITEM) return helpTopicOfMenu(request.iCtrlId);
    const HWND root = GetAncestor(static_cast<HWND>(request.hItemHandle), GA_ROOT);
    // Windows' own dialog class: a message box.
    if (root == nullptr || win32::classOf(root) != "#32770") return {};
    return std::string(helpTopicOfMessage(win32::textOf(root)));
}

} // namespace varno
