#include "win32/form_window.h"

#include <commctrl.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "win32/accessible_names.h"
#include "win32/control_kinds.h"
#include "win32/control_manners.h"
#include "win32/control_roles.h"
#include "win32/group_box.h"
#include "win32/label_drawing.h"
#include "win32/line_edit.h"
#include "win32/resource_ids.h"
#include "win32/strings.h"

namespace varno::win32 {

namespace {

constexpr UINT returnToBox = WM_APP;

// Every other window of the program, disabled for as long as a modal window runs.
class DisabledOthers {
  public:
    explicit DisabledOthers(HWND except) : except_(except) {
        EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
    }
    ~DisabledOthers() {
        for (const HWND window : windows_)
            EnableWindow(window, TRUE);
    }
    DisabledOthers(const DisabledOthers&) = delete;
    DisabledOthers& operator=(const DisabledOthers&) = delete;

  private:
    static BOOL CALLBACK disable(HWND window, LPARAM self) {
        auto& others = *reinterpret_cast<DisabledOthers*>(self);
        if (window != others.except_ && IsWindowEnabled(window) && IsWindowVisible(window)) {
            EnableWindow(window, FALSE);
            others.windows_.push_back(window);
        }
        return TRUE;
    }

    HWND except_;
    std::vector<HWND> windows_;
};

} // namespace

FormWindow::~FormWindow() {
    host().activation().forget(*this);
}

void FormWindow::createDialog(const wchar_t* className, const std::string& caption, HWND owner, HMENU menu,
                              DWORD closeBox) {
    create(className, caption, WS_POPUP | WS_CAPTION | closeBox, WS_EX_DLGMODALFRAME, owner, menu, {});
}

void FormWindow::runModal() {
    open_ = true;
    const HWND owner = GetWindow(handle(), GW_OWNER);
    {
        const DisabledOthers others(handle());
        bringForward();
        MSG message;
        while (open_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
            if (!answers(message)) dispatch(host(), message);
        }
        // The end of the program passes through every loop.
        if (open_) PostQuitMessage(static_cast<int>(message.wParam));
    }
    // The others are enabled before this one goes, so that Windows activates one of them and not another
    // program.
    if (owner != nullptr) SetActiveWindow(owner);
    ShowWindow(handle(), SW_HIDE);
}

// J and N answer a question, as "Ja" and as "Nej" or what stands in its place.
bool FormWindow::answers(const MSG& message) {
    if (message.message != WM_KEYDOWN || item(IDYES) == nullptr || !IsChild(handle(), message.hwnd))
        return false;
    if (message.wParam != 'J' && message.wParam != 'N') return false;
    const HWND no = item(IDNO) != nullptr ? item(IDNO) : item(IDCANCEL);
    SendMessageW(message.wParam == 'J' ? item(IDYES) : no, BM_CLICK, 0, 0);
    return true;
}

// Enter comes as "OK". On a button that has the focus it presses that one.
bool FormWindow::pressFocused() {
    const HWND focus = GetFocus();
    if (GetParent(focus) != handle() || !isPushButton(focus) || GetDlgCtrlID(focus) == IDOK) return false;
    SendMessageW(focus, BM_CLICK, 0, 0);
    return true;
}

// What the arrow keys lead to. The button with the focus looks like the one that Enter presses.
void FormWindow::moveTo(HWND control) {
    if (isPushButton(control)) {
        for (const Placed& placed : placed_) {
            if (isPushButton(placed.control))
                SendMessageW(placed.control, BM_SETSTYLE,
                             placed.control == control ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
        }
    }
    SetFocus(control);
}

void FormWindow::closeForm() {
    if (std::exchange(open_, false)) return;
    // Back to the window that it belongs to, whichever others are open.
    const HWND owner = GetWindow(handle(), GW_OWNER);
    if (owner != nullptr && GetActiveWindow() == handle()) SetActiveWindow(owner);
    ShowWindow(handle(), SW_HIDE);
}

void FormWindow::setBoxText(int id, const std::string& text) {
    const HWND box = item(id);
    entered_[id] = text;
    // Setting a text moves the caret and tells of a change, also when it is the same.
    if (textOf(box) == text) return;
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const int before = GetWindowTextLengthW(box);
    setText(box, text);
    if (GetFocus() != box) return;
    const bool all = start == 0 && static_cast<int>(end) == before;
    const int grown = GetWindowTextLengthW(box) - before;
    const auto moved = [&](DWORD place) { return std::max(0, static_cast<int>(place) + grown); };
    SendMessageW(box, EM_SETSEL, static_cast<WPARAM>(all ? 0 : moved(start)), all ? -1 : moved(end));
}

bool FormWindow::typing() const {
    const HWND focus = GetFocus();
    return GetParent(focus) == handle() && classOf(focus) == "Edit" && isTyped(GetDlgCtrlID(focus));
}

void FormWindow::takeOver() {
    const HWND focus = GetFocus();
    if (GetParent(focus) == handle() && (classOf(focus) == "Edit" || classOf(focus) == "ComboBox"))
        leaveKept(GetDlgCtrlID(focus));
}

bool FormWindow::isTyped(int box) const {
    const auto entered = entered_.find(box);
    return entered != entered_.end() && entered->second != textOf(item(box));
}

void FormWindow::takeBack(int box) {
    setText(item(box), entered_[box]);
}

void FormWindow::postReturnTo(int id) {
    PostMessageW(handle(), returnToBox, static_cast<WPARAM>(id), 0);
}

void FormWindow::returnTo(HWND box) {
    // Another window may have come up in the meantime, or the box gone with its row.
    const HWND root = GetAncestor(handle(), GA_ROOT);
    if (GetActiveWindow() == root && IsWindowEnabled(root) && IsWindowVisible(box) && IsWindowEnabled(box))
        SetFocus(box);
    SendMessageW(box, EM_SETSEL, 0, -1);
}

void FormWindow::addControls(std::span<const ControlSpec> controls) {
    if (!fonts_[0]) setDpi(dpiOf(handle()));
    for (const ControlSpec& spec : controls) {
        if (spec.kind == ControlKind::label && *spec.text != '\0') label_ = spec.text;
        const HWND control = createControl(handle(), spec);
        if (spec.id != 0) items_.emplace(spec.id, control);
        if (spec.kind == ControlKind::memo) {
            SendMessageW(control, EM_SETLIMITTEXT, 0, 0);
            leaveKeysToWindow(control);
        }
        // Of itself a spin button's range runs from 100 down to 0, and its upper arrow counts down.
        if (spec.kind == ControlKind::spin) SendMessageW(control, UDM_SETRANGE32, 0, 100);
        if (isLineEdit(spec.kind)) dressLineEdit(control);
        if (spec.kind == ControlKind::group) drawGroup(control);
        if (keepsNoWheel(spec.kind)) passWheelOn(control);
        tellWhenReached(control);
        if (spec.kind == ControlKind::edit || spec.kind == ControlKind::numberEdit) watchBox(control, *this);
        describe(control, spec.kind, takesLabel(spec.kind) ? label_.substr(0, label_.find(':')) : "");
        // A drop-down list's height is that of its open list.
        const int open = spec.kind == ControlKind::dropDown ? raster(220) : 0;
        placed_.push_back({control, spec.kind, {spec.x, spec.y, spec.right(), spec.bottom() + open}});
        setFont(control, FontRole::text);
    }
}

void FormWindow::describe(HWND control, ControlKind kind, const std::string& name) {
    nameForScreenReaders(control, name, roleOf(kind));
}

void FormWindow::name(int id, ControlKind kind, const std::string& name) {
    describe(item(id), kind, name);
}

void FormWindow::setFont(HWND control, FontRole role) {
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font(role)), TRUE);
}

void FormWindow::setFontRole(int id, FontRole role) {
    const HWND control = item(id);
    for (Placed& placed : placed_) {
        if (placed.control == control) placed.role = role;
    }
    setFont(control, role);
}

void FormWindow::setDpi(int dpi) {
    dpi_ = dpi;
    UniqueFont fresh[fontRoles];
    for (int role = 0; role < fontRoles; ++role)
        fresh[role] = systemFont(dpi, static_cast<FontRole>(role));
    std::swap_ranges(fresh, fresh + fontRoles, fonts_);
    for (const Placed& placed : placed_)
        setFont(placed.control, placed.role);
    fontsChanged();
}

void FormWindow::layOut() {
    for (const Placed& placed : placed_) {
        // Both edges are rounded, not the size: neighbours that touch in twips touch in pixels.
        const int left = px(placed.twips.left);
        const int top = px(placed.twips.top);
        setPlace(placed.control, origin_.x + left, origin_.y + top, px(placed.twips.right) - left,
                 px(placed.twips.bottom) - top);
    }
}

SIZE FormWindow::frameFor(SIZE client) const {
    RECT frame{0, 0, client.cx, client.cy};
    AdjustWindowRectExForDpi(
        &frame, static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_STYLE)), GetMenu(handle()) != nullptr,
        static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_EXSTYLE)), static_cast<UINT>(dpi_));
    return {frame.right - frame.left, frame.bottom - frame.top};
}

void FormWindow::keepAtLeast(MINMAXINFO& sizes, SIZE client) const {
    const RECT work = workAreaOf(handle());
    const SIZE least = frameFor(client);
    sizes.ptMinTrackSize = {std::min(least.cx, work.right - work.left),
                            std::min(least.cy, work.bottom - work.top)};
}

void FormWindow::stand(int width, int height, HWND over) {
    if (std::exchange(stands_, true)) return;
    sizeAndCentre(width, height, over);
    const auto kept = host().keptPlace(classOf(handle()));
    if (!kept) return;
    const bool grows = (GetWindowLongPtrW(handle(), GWL_STYLE) & WS_THICKFRAME) != 0;
    const UINT size = grows ? 0 : SWP_NOSIZE;
    SetWindowPos(handle(), nullptr, kept->area.x, kept->area.y, kept->area.width, kept->area.height,
                 size | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::sizeAndCentre(int width, int height, HWND over) {
    setDpi(dpiOf(handle()));
    const RECT work = workAreaOf(over != nullptr ? over : handle());
    RECT around = work;
    if (over != nullptr && IsWindowVisible(over) && !IsIconic(over)) GetWindowRect(over, &around);
    const SIZE frame = frameFor({px(width), px(height)});
    const int w = static_cast<int>(std::min(frame.cx, work.right - work.left));
    const int h = static_cast<int>(std::min(frame.cy, work.bottom - work.top));
    const auto middle = [](LONG low, LONG high, int size, LONG least, LONG most) {
        return std::max<LONG>(least, std::min<LONG>(low + (high - low - size) / 2, most - size));
    };
    setPlace(handle(), middle(around.left, around.right, w, work.left, work.right),
             middle(around.top, around.bottom, h, work.top, work.bottom), w, h);
    layOut();
}

void FormWindow::leaveKept(int field) {
    const int notification = classOf(item(field)) == "Edit" ? EN_KILLFOCUS : CBN_KILLFOCUS;
    host().guarded([&] { onCommand(field, notification); });
}

void FormWindow::controlTold(HWND control, int notification) {
    const int id = GetDlgCtrlID(control);
    // The numbers mean something else with every kind of control.
    const std::string kind = classOf(control);
    const bool edit = kind == "Edit";
    Activation& activation = host().activation();
    if (edit || kind == "ComboBox") {
        if (notification == (edit ? EN_KILLFOCUS : CBN_KILLFOCUS) && !activation.leaves(*this, id)) return;
        if (notification == (edit ? EN_SETFOCUS : CBN_SETFOCUS)) {
            if (!activation.enters(*this, id)) return;
            entered_[id] = textOf(control);
        }
    }
    if (const auto heard = dropDowns_.heard(control, notification)) onCommand(id, *heard);
}

void FormWindow::onCommand(int id, int) {
    if (id == IDCANCEL) onCloseBox();
}

// As Tab does: what stands in a box is selected.
void FormWindow::enterFirst(HWND control) {
    SetFocus(control);
    if (classOf(control) == "Edit") SendMessageW(control, EM_SETSEL, 0, -1);
}

void FormWindow::showWhole(HWND box, bool shown) {
    whole_.hide();
    if (shown) whole_.show(box, textOf(box));
}

void FormWindow::drawPicture(const DRAWITEMSTRUCT& item) {
    const RECT& box = item.rcItem;
    FillRect(item.hDC, &box, GetSysColorBrush(COLOR_BTNFACE));
    const int size = std::min(box.right - box.left, box.bottom - box.top);
    const UniqueIcon icon(static_cast<HICON>(LoadImageW(programInstance(), MAKEINTRESOURCEW(idProgramIcon),
                                                        IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    if (icon) DrawIconEx(item.hDC, box.left, box.top, icon.get(), size, size, 0, nullptr, DI_NORMAL);
}

void FormWindow::drawControl(const DRAWITEMSTRUCT& item) {
    const auto drawn = std::ranges::find(placed_, item.hwndItem, &Placed::control);
    if (drawn == placed_.end()) return;
    switch (drawn->kind) {
    case ControlKind::picture:
        drawPicture(item);
        return;
    case ControlKind::paragraph:
        drawParagraph(item);
        return;
    default:
        drawSymbol(item, font(FontRole::symbol), font(FontRole::subscript));
    }
}

LRESULT FormWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NEXTDLGCTL:
        if (LOWORD(lParam) != 0) moveTo(reinterpret_cast<HWND>(wParam));
        return 0;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK && pressFocused()) return 0;
        if (lParam != 0) {
            controlTold(reinterpret_cast<HWND>(lParam), HIWORD(wParam));
        } else {
            onCommand(LOWORD(wParam), HIWORD(wParam));
        }
        return 0;
    case WM_CLOSE:
        onCloseBox();
        return 0;
    case controlReached:
        reached(reinterpret_cast<HWND>(lParam));
        return 0;
    case numberCut:
        showWhole(reinterpret_cast<HWND>(lParam), wParam != FALSE);
        return 0;
    case returnToBox:
        returnTo(item(static_cast<int>(wParam)));
        return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        if (const auto ground = marks_.ground(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam)))
            return *ground;
        return defaultProc(message, wParam, lParam);
    case WM_DRAWITEM:
        drawControl(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_ACTIVATE:
        activationChanged(wParam, lParam);
        if (LOWORD(wParam) != WA_INACTIVE && !restoreFocus()) {
            const HWND first = GetNextDlgTabItem(handle(), nullptr, FALSE);
            if (first != nullptr) enterFirst(first);
        }
        return 0;
    case WM_DPICHANGED:
        setDpi(HIWORD(wParam));
        setPlace(handle(), *reinterpret_cast<const RECT*>(lParam));
        layOut();
        return 0;
    default:
        return defaultProc(message, wParam, lParam);
    }
}

} // namespace varno::win32
