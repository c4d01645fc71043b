#include "shell/help_contexts.h"

#include "controls/control_ids.h"
#include "help/help_topics.h"
#include "input/form_layout.h"
#include "shell/help_places.h"
#include "win32/strings.h"

namespace varno {

namespace {

constexpr int flagCount = 7;

std::string classOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return win32::narrow(name);
}

// The boxes of both line load editors.
std::string_view lineLoadTopic(int id) {
    if (id == idLineLoadSpin) return helpTopicOf({LineLoadBox::nllast});
    const int offset = id - idLineLoadField;
    if (offset < 0 || offset / 10 > static_cast<int>(LineLoadBox::multiplier)) return {};
    return helpTopicOf({static_cast<LineLoadBox>(offset / 10), offset % 10});
}

std::string_view ownTopic(HWND window) {
    if (GetParent(window) == nullptr) return {};
    const std::string parent = classOf(GetParent(window));
    if (parent == "VarnoLineLoads" || parent == "VarnoFreeLineLoads")
        return lineLoadTopic(GetDlgCtrlID(window));
    return helpTopicOfContext(GetWindowContextHelpId(window));
}

} // namespace

void setHelpContexts(HWND main, HWND form) {
    for (const ControlSpec& spec : inputFormLayout()) {
        const auto control = controlOfId(spec.id);
        if (control) SetWindowContextHelpId(GetDlgItem(form, spec.id), helpContext(helpTopicOf(*control)));
    }
    for (int flag = 0; flag < flagCount; ++flag)
        SetWindowContextHelpId(GetDlgItem(main, idFlag + flag), helpContext("falt-flagga"));
}

std::string_view helpTopicOfFocus(HWND focus) {
    for (HWND window = focus; window != nullptr; window = GetParent(window)) {
        const std::string_view own = ownTopic(window);
        if (!own.empty()) return own;
        const std::string_view kind = helpTopicOfWindow(classOf(window));
        if (!kind.empty()) return kind;
    }
    return "oversikt";
}

std::string_view helpTopicOfRequest(const HELPINFO& request) {
    if (request.iContextType == HELPINFO_MENUITEM) return helpTopicOfMenu(request.iCtrlId);
    const HWND root = GetAncestor(static_cast<HWND>(request.hItemHandle), GA_ROOT);
    // Windows' own dialog class: a message box.
    return root != nullptr && classOf(root) == "#32770" ? helpTopicOfMessage(win32::textOf(root))
                                                        : std::string_view();
}

} // namespace varno
