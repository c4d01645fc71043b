#include "input/input_form_window.h"

#include <commctrl.h>

#include "controls/rule_sets.h"
#include "input/field_table.h"
#include "input/form_layout.h"
#include "win32/strings.h"

namespace varno {

using win32::wide;

namespace {

// The highest option a group has on the form.
constexpr int mostOptions = 4;

} // namespace

void InputFormWindow::create(HWND mdiClient) {
    // Without WS_CLIPCHILDREN: a frame has no background of its own, it shows that of the form.
    // Hidden until there is a case in it: start-up shows other windows first.
    Window::create(L"VarnoInputForm", "", WS_CHILD, WS_EX_MDICHILD, mdiClient, nullptr, {0, 0, 100, 100});
    setDpi(win32::dpiOf(mdiClient));
    addControls(inputFormLayout());
    SendMessageW(item(controlId({Field::rubrik})), EM_SETLIMITTEXT, 255, 0);
    speakAs("Indata");
    for (const ControlSpec& spec : inputFormLayout()) {
        const auto known = controlOfId(spec.id);
        const std::string name = known ? accessibleName(*known) : std::string();
        if (!name.empty()) this->name(spec.id, spec.kind, name);
    }
    nameSymbols();
    layOut();
}

// A letter does not tell its name; the field behind it does.
void InputFormWindow::nameSymbols() {
    const std::vector<ControlSpec> controls = inputFormLayout();
    HWND window = GetWindow(handle(), GW_CHILD);
    for (std::size_t i = 0; i + 1 < controls.size(); ++i, window = GetWindow(window, GW_HWNDNEXT)) {
        const auto field = controlOfId(controls[i + 1].id);
        if (controls[i].kind != ControlKind::symbolLabel || !field) continue;
        // Without this style the pointer falls through it onto the form.
        SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | SS_NOTIFY);
        tips_.add(window, accessibleName(*field));
        tips_.add(this->window(*field), accessibleName(*field));
    }
}

void InputFormWindow::changeDpi(int dpi) {
    setDpi(dpi);
    layOut();
}

// A control that goes or is locked does not keep the keyboard to itself.
void InputFormWindow::keepFocusOff(HWND box) {
    if (GetFocus() == box) focus({Field::rubrik});
}

void InputFormWindow::setVisible(Control control, bool visible) {
    if (!visible) keepFocusOff(window(control));
    ShowWindow(window(control), visible ? SW_SHOWNA : SW_HIDE);
    if (control.field == Field::brandb) keepReachable(control.field);
    // The number above a column comes and goes with it.
    if (control.field == Field::spv)
        ShowWindow(item(spanHeadId(control.index)), visible ? SW_SHOWNA : SW_HIDE);
}

void InputFormWindow::setEnabled(Control control, bool enabled) {
    if (!enabled) keepFocusOff(window(control));
    EnableWindow(window(control), enabled);
}

void InputFormWindow::setCaption(Control control, const std::string& caption) {
    win32::setText(window(control), caption);
}

void InputFormWindow::showRows(Field list, std::span<const std::string_view> rows, int selected) {
    const HWND box = window({list});
    clearRows(controlId({list}));
    for (const std::string_view row : rows)
        SendMessageW(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(row).c_str()));
    if (selected < 0 || selected >= static_cast<int>(rows.size())) return;
    showRow(controlId({list}), selected);
    // Windows tells nothing of a row that the program chose; the change rule runs for it all the same.
    if (rules_ != nullptr) host().guarded([&] { rules_->changed({list}); });
}

int InputFormWindow::selectedRow(Field list) const {
    return static_cast<int>(SendMessageW(window({list}), CB_GETCURSEL, 0, 0));
}

void InputFormWindow::selectOption(Field group, int option) {
    for (int i = 1; i <= mostOptions; ++i) {
        const HWND button = window({group, i});
        if (button != nullptr)
            SendMessageW(button, BM_SETCHECK, i == option ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    keepReachable(group);
}

int InputFormWindow::chosenOption(Field group) const {
    for (int i = 1; i <= mostOptions; ++i) {
        const HWND button = window({group, i});
        if (button != nullptr && SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED) return i;
    }
    return 0;
}

// Tab comes to the chosen option of a group, and Windows lets it come to no other. Where none is chosen, or one that is
// hidden, it comes to the first.
void InputFormWindow::keepReachable(Field group) {
    const HWND chosen = window({group, chosenOption(group)});
    const bool seen = chosen != nullptr && (GetWindowLongPtrW(chosen, GWL_STYLE) & WS_VISIBLE) != 0;
    for (int i = 1; i <= mostOptions; ++i) {
        const HWND button = window({group, i});
        if (button == nullptr) continue;
        const bool stop = seen ? button == chosen : i == 1;
        const LONG_PTR style = GetWindowLongPtrW(button, GWL_STYLE);
        SetWindowLongPtrW(button, GWL_STYLE, stop ? style | WS_TABSTOP : style & ~LONG_PTR{WS_TABSTOP});
    }
}

void InputFormWindow::showGroup(Field group, bool visible) {
    ShowWindow(item(classFrameId(ruleSetWith(&RuleSet::classGroup, group)->number)),
               visible ? SW_SHOWNA : SW_HIDE);
    for (int i = 1; i <= mostOptions; ++i) {
        const HWND button = window({group, i});
        if (button != nullptr) ShowWindow(button, visible ? SW_SHOWNA : SW_HIDE);
    }
    keepReachable(group);
}

void InputFormWindow::setChecked(Field box, bool checked) {
    SendMessageW(window({box}), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void InputFormWindow::showHint(Control control, const std::string& text) {
    const HWND box = window(control);
    if (GetFocus() == box) hint_.show(box, text);
}

std::optional<Control> InputFormWindow::lockedAt(POINT place) const {
    // Where a locked one is, Windows finds what it stands in.
    if (WindowFromPoint(place) != handle()) return std::nullopt;
    for (const ControlSpec& spec : inputFormLayout()) {
        const HWND box = item(spec.id);
        if (spec.kind != ControlKind::numberEdit || !IsWindowVisible(box) || IsWindowEnabled(box)) continue;
        RECT area{};
        GetWindowRect(box, &area);
        if (PtInRect(&area, place)) return controlOfId(spec.id);
    }
    return std::nullopt;
}

void InputFormWindow::showDoubts(const std::vector<Doubt>& doubts) {
    std::map<int, std::string> boxes;
    for (const Doubt& doubt : doubts) {
        if (doubt.box) boxes.emplace(controlId(*doubt.box), doubt.text);
    }
    mark(boxes);
}

LRESULT InputFormWindow::defaultProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefMDIChildProcW(handle(), message, wParam, lParam);
}

void InputFormWindow::onCommand(int id, int notification) {
    const auto control = controlOfId(id);
    if (rules_ == nullptr) return;
    if (id == idFormLabel && notification == STN_CLICKED) rules_->focusTitle();
    if (!control) return;
    const HWND box = item(id);
    const std::string kind = win32::classOf(box);
    if (kind == "Edit") {
        if (notification == EN_CHANGE) rules_->changed(*control);
        if (notification == EN_SETFOCUS) {
            lastFocused_ = box;
            rules_->entered(*control);
        }
        if (notification == EN_KILLFOCUS) rules_->lostFocus(*control);
    } else if (kind == "ComboBox") {
        if (notification == CBN_SETFOCUS) lastFocused_ = box;
        if (notification == CBN_SELCHANGE) {
            rules_->changed(*control);
            rules_->clicked(*control);
        }
        if (notification == CBN_KILLFOCUS) rules_->lostFocus(*control);
    } else if (notification == BN_CLICKED) {
        clickButton(*control, box);
    }
}

void InputFormWindow::clickButton(Control control, HWND button) {
    const auto state = static_cast<int>(SendMessageW(button, BM_GETCHECK, 0, 0));
    // An option chooses itself when it gets the focus; passing it with Tab is no choice.
    if (button == entering_) return;
    if (control.field == Field::kavko) {
        rules_->clicked({control.field, state});
    } else if (state == BST_CHECKED) {
        // Walking through a group with the arrow keys also tells of the button that is left.
        keepReachable(control.field);
        rules_->clicked(control);
    }
}

bool InputFormWindow::isTyped(int box) const {
    const auto control = controlOfId(box);
    return rules_ != nullptr && control && rules_->isTyped(*control);
}

void InputFormWindow::takeBack(int box) {
    if (const auto control = controlOfId(box)) rules_->takeBack(*control);
}

bool InputFormWindow::pasted(int box, const std::string& text) {
    const auto control = controlOfId(box);
    bool taken = false;
    if (rules_ != nullptr && control) {
        // A refused number is told; it is not for the box to paste then.
        taken = true;
        host().guarded([&] { taken = rules_->pasted(*control, text); });
    }
    return taken;
}

std::optional<std::string> InputFormWindow::copied(int box) const {
    const auto control = controlOfId(box);
    return rules_ != nullptr && control ? rules_->copied(*control) : std::nullopt;
}

void InputFormWindow::enter(HWND box) {
    const auto known = controlOfId(GetDlgCtrlID(box));
    const bool option = known && (SendMessageW(box, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
    const int chosen = option ? chosenOption(known->field) : 0;
    entering_ = box;
    SetFocus(box);
    entering_ = nullptr;
    if (option && chosenOption(known->field) != chosen) selectOption(known->field, chosen);
    // As Windows does for Tab: what is typed next replaces what is there.
    if ((SendMessageW(box, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) SendMessageW(box, EM_SETSEL, 0, -1);
}

void InputFormWindow::focusEnd(bool last) {
    const HWND first = GetNextDlgTabItem(handle(), nullptr, FALSE);
    enter(last ? GetNextDlgTabItem(handle(), first, TRUE) : first);
}

bool InputFormWindow::moveOn(HWND from, bool backwards) {
    const HWND first = GetNextDlgTabItem(handle(), nullptr, FALSE);
    const HWND next = GetNextDlgTabItem(handle(), from, backwards);
    if (backwards ? from == first : next == first) {
        rules_->tabbedOut(backwards);
    } else {
        enter(next);
    }
    return true;
}

bool InputFormWindow::moveInColumn(Control from, int rows) {
    if (from.field == Field::nfack) {
        rows < 0 ? rules_->spinUp() : rules_->spinDown();
        enter(window({Field::nfack}));
        return true;
    }
    // A locked box is passed over.
    for (auto next = gridNeighbour(from, rows); next; next = gridNeighbour(*next, rows)) {
        const HWND box = window(*next);
        if (!IsWindowVisible(box) || !IsWindowEnabled(box)) continue;
        enter(box);
        return true;
    }
    return gridNeighbour(from, 1).has_value() || gridNeighbour(from, -1).has_value();
}

bool InputFormWindow::translateKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || rules_ == nullptr) return false;
    const HWND focus = GetFocus();
    if (focus == nullptr || GetParent(focus) != handle()) return false;
    const auto control = controlOfId(GetDlgCtrlID(focus));
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    switch (message.wParam) {
    case VK_TAB:
        if (GetKeyState(VK_CONTROL) < 0) return false;
        // Leaving an open list takes its choice back, unless it was closed before.
        if (SendMessageW(focus, CB_GETDROPPEDSTATE, 0, 0) != 0) SendMessageW(focus, WM_KEYDOWN, VK_RETURN, 0);
        return moveOn(focus, shift);
    case VK_RETURN:
        // An open list takes Enter itself, to close.
        if (SendMessageW(focus, CB_GETDROPPEDSTATE, 0, 0) != 0) return false;
        return moveOn(focus, shift);
    case VK_UP:
        return control && moveInColumn(*control, -1);
    case VK_DOWN:
        return control && moveInColumn(*control, 1);
    default:
        return false;
    }
}

LRESULT InputFormWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (scrollMessage(message, wParam)) return 0;
    switch (message) {
    case WM_CLOSE:
        // The form lives as long as the main window.
        return 0;
    case WM_SETFOCUS:
        SetFocus(lastFocused_ != nullptr ? lastFocused_ : item(controlId({Field::rubrik})));
        return 0;
    case WM_LBUTTONDOWN:
        if (rules_ != nullptr) rules_->focusTitle();
        return 0;
    case WM_NOTIFY: {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code != UDN_DELTAPOS || rules_ == nullptr) break;
        const auto& step = *reinterpret_cast<const NMUPDOWN*>(lParam);
        step.iDelta > 0 ? rules_->spinUp() : rules_->spinDown();
        // The control's own position means nothing; it must not run into its end.
        return TRUE;
    }
    default:
        break;
    }
    return FormWindow::onMessage(message, wParam, lParam);
}

} // namespace varno
