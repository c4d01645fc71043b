#include "shell/main_window.h"

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "controls/control_ids.h"
#include "controls/control_spec.h"
#include "controls/rule_sets.h"
#include "shell/flag_painter.h"
#include "shell/main_layout.h"
#include "shell/menu_table.h"
#include "win32/accessible_names.h"
#include "win32/dpi.h"
#include "win32/given_files.h"
#include "win32/popup_menu.h"
#include "win32/strings.h"
#include "win32/support_painter.h"

namespace varno {

namespace {

constexpr UINT showErrorMessage = WM_APP + 1;
constexpr UINT_PTR statusTimer = 1;
constexpr UINT statusInterval = 200; // ms

void put(HWND window, const Area& area) {
    win32::setPlace(window, area.x, area.y, area.width, area.height);
}

} // namespace

MainWindow::MainWindow(win32::WindowHost& host, const SketchPicture& sketch)
    : Window(host), sketch_(sketch), loadPicture_(host), slabStrip_(host) {}

MainWindow::~MainWindow() {
    destroy();
}

HMENU MainWindow::buildMenu() {
    const HMENU bar = CreateMenu();
    HMENU menu = nullptr;
    HMENU submenu = nullptr;
    for (const MenuEntry& entry : menuTree) {
        const bool inBar = entry.kind == MenuEntry::menu || entry.kind == MenuEntry::plainItem;
        const HMENU parent = inBar ? bar : entry.kind == MenuEntry::submenuItem ? submenu : menu;
        UINT flags = entry.kind == MenuEntry::separator ? MF_SEPARATOR : MF_STRING;
        auto id = static_cast<UINT_PTR>(entry.id);
        if (entry.kind == MenuEntry::menu || entry.kind == MenuEntry::submenu) {
            HMENU& popup = inBar ? menu : submenu;
            popup = CreatePopupMenu();
            flags = MF_POPUP;
            id = reinterpret_cast<UINT_PTR>(popup);
        }
        AppendMenuW(parent, flags, id, win32::wide(entry.caption).c_str());
    }
    fileMenu_ = GetSubMenu(bar, 0);
    return bar;
}

void MainWindow::listen(MainEvents& events) {
    events_ = &events;
    // What is dropped on a part of it comes here.
    Window::create(L"VarnoMain", "", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_ACCEPTFILES, nullptr,
                   buildMenu(), {});
    // The menu tree is fixed, so the help command stands in the menu of the window itself.
    AppendMenuW(GetSystemMenu(handle(), FALSE), MF_STRING, idHelp, L"Hjälp\tF1");
    createParts();
    SetTimer(handle(), statusTimer, statusInterval, nullptr);
    setDpi(win32::dpiOf(handle()));
}

void MainWindow::createParts() {
    toolbar_.create(handle());
    loadPicture_.create(handle(), idLoadPicture, "Lastbild", sketch_.loadPicture);
    slabStrip_.create(handle(), idSlabStrip, "Plattremsa", sketch_.slabStrip);
    for (int i = 0; i < supportCount; ++i) {
        const HWND support =
            win32::createControl(slabStrip_.handle(), idSupportButton + i, L"BUTTON", "", BS_OWNERDRAW);
        win32::nameForScreenReaders(support, "Stöd " + std::to_string(i), ROLE_SYSTEM_PUSHBUTTON);
        supports_[static_cast<std::size_t>(i)].button = support;
    }
    for (int flag = 0; flag < flagCount; ++flag) {
        const HWND button =
            win32::createControl(handle(), idFlag + flag, L"BUTTON", flagName(flag), BS_OWNERDRAW);
        win32::nameForScreenReaders(button, "", ROLE_SYSTEM_PUSHBUTTON);
    }
    flagLabel_ = win32::createControl(handle(), 0, L"STATIC", "", WS_VISIBLE | SS_LEFT | SS_NOPREFIX);
    win32::nameForScreenReaders(flagLabel_, "", ROLE_SYSTEM_STATICTEXT);
    win32::nameForScreenReaders(toolbar_.handle(), "Verktyg", ROLE_SYSTEM_TOOLBAR);
    statusLabels_.create(handle());
    CLIENTCREATESTRUCT client{};
    client.idFirstChild = idFirstMdiChild;
    mdiClient_ = win32::createControl(handle(), idMdiClient, L"MDICLIENT", "",
                                      WS_VISIBLE | WS_CLIPCHILDREN | MDIS_ALLCHILDSTYLES, 0, &client);
}

void MainWindow::setDpi(int dpi) {
    dpi_ = dpi;
    toolbar_.setDpi(dpi);
    win32::UniqueFont font = win32::systemFont(dpi);
    SendMessageW(flagLabel_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    statusLabels_.setFont(font.get());
    font_ = std::move(font);
}

SIZE MainWindow::frameFor(const Area& client) const {
    RECT frame{0, 0, client.width, client.height};
    AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_STYLE)), TRUE,
                             static_cast<DWORD>(GetWindowLongPtrW(handle(), GWL_EXSTYLE)),
                             static_cast<UINT>(dpi_));
    return {frame.right - frame.left, frame.bottom - frame.top};
}

void MainWindow::show() {
    if (!shown_) {
        const RECT work = win32::workAreaOf(handle());
        SIZE size = frameFor(naturalMainArea(dpi_));
        // Where the form has to scroll, its bar must not hide what stands at the right.
        if (size.cy > work.bottom - work.top)
            size.cx += GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(dpi_));
        const LONG width = std::min(size.cx, work.right - work.left);
        const LONG height = std::min(size.cy, work.bottom - work.top);
        const auto kept = host().keptPlace(win32::classOf(handle()));
        if (kept) {
            put(handle(), kept->area);
        } else {
            win32::setPlace(handle(), work.left + (work.right - work.left - width) / 2,
                            work.top + (work.bottom - work.top - height) / 2, width, height);
        }
        // From here on every new size does; on its way to the first one it would lay out three times.
        shown_ = true;
        layOut();
        ShowWindow(handle(), kept && kept->maximized ? SW_SHOWMAXIMIZED : SW_SHOW);
        UpdateWindow(handle());
        return;
    }
    bringForward();
}

void MainWindow::sizeChanged(SIZE client) {
    // Windows tells it again when the window is shown.
    if (client.cx != laidOut_.cx || client.cy != laidOut_.cy) layOut();
}

void MainWindow::layOut() {
    RECT client{};
    GetClientRect(handle(), &client);
    laidOut_ = {client.right, client.bottom};
    const MainLayout layout = mainLayout(client.right, client.bottom, dpi_);
    put(toolbar_.handle(), layout.toolbar);
    put(loadPicture_.handle(), layout.loadPicture);
    put(slabStrip_.handle(), layout.slabStrip);
    sketchDpi_ = layout.sketchDpi;
    loadPicture_.setScale(sketchDpi_, dpi_);
    slabStrip_.setScale(sketchDpi_, dpi_);
    placeSupportButtons();
    for (int flag = 0; flag < flagCount; ++flag)
        put(GetDlgItem(handle(), idFlag + flag), layout.flag);
    put(flagLabel_, layout.flagName);
    statusLabels_.place(layout);
    put(mdiClient_, layout.form);
    events_->clientResized(layout.form.width, layout.form.height);
    // Parts that change places would carry pieces of each other along.
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void MainWindow::placeSupportButtons() {
    const auto toPixels = [this](double twips) { return pixelsOf(twips, sketchDpi_); };
    for (int i = 0; i < supportCount; ++i) {
        Support& support = supports_[static_cast<std::size_t>(i)];
        const SketchPicture::Button& state = sketch_.button(i);
        const Area place{toPixels(state.left), toPixels(state.top), toPixels(supportButtonWidth),
                         toPixels(supportButtonHeight)};
        // Most edits leave them where they are.
        if (state.visible && place != support.place) put(support.button, support.place = place);
        if (state.visible == std::exchange(support.visible, state.visible)) continue;
        ShowWindow(support.button, state.visible ? SW_SHOWNA : SW_HIDE);
    }
}

bool MainWindow::onGreyDiagram(POINT pointer) const {
    if (diagramEnabled_) return false;
    if (menuOnDiagram_) return true;
    const HWND below = WindowFromPoint(pointer);
    if (below == toolbar_.handle()) return toolbar_.at(pointer) == idMoment;
    return below == handle() && MenuItemFromPoint(handle(), GetMenu(handle()), pointer) == diagramMenuPlace;
}

void MainWindow::sketchChanged() {
    if (!exists()) return;
    loadPicture_.redraw();
    slabStrip_.redraw();
    placeSupportButtons();
}

void MainWindow::postRunTimeError() {
    PostMessageW(handle(), showErrorMessage, 0, 0);
}

void MainWindow::setBusy(bool busy) {
    busy_ += busy ? 1 : -1;
    SetCursor(LoadCursorW(nullptr, busy_ > 0 ? IDC_WAIT : IDC_ARROW));
}

void MainWindow::setDiagramEnabled(bool enabled) {
    if (diagramEnabled_ == enabled) return;
    diagramEnabled_ = enabled;
    EnableMenuItem(GetMenu(handle()), diagramMenuPlace, MF_BYPOSITION | (enabled ? MF_ENABLED : MF_GRAYED));
    DrawMenuBar(handle());
    toolbar_.setEnabled(idMoment, enabled);
}

void MainWindow::showFlag(int flag) {
    if (flag == flag_) return;
    flag_ = flag;
    for (int other = 0; other < flagCount; ++other) {
        ShowWindow(GetDlgItem(handle(), idFlag + other), other == flag ? SW_SHOWNA : SW_HIDE);
    }
    win32::setText(flagLabel_, flagName(flag));
}

LRESULT MainWindow::onActivate(WPARAM wParam, LPARAM lParam) {
    const bool comesBack = activationChanged(wParam, lParam);
    if (LOWORD(wParam) == WA_INACTIVE) return 0;
    if (!comesBack) events_->activated();
    if (!IsChild(handle(), GetFocus()) && !restoreFocus()) defaultProc(WM_ACTIVATE, wParam, lParam);
    return 0;
}

LRESULT MainWindow::onCommand(WPARAM wParam, LPARAM lParam) {
    const int id = LOWORD(wParam);
    if (id >= idFlag && id < idFlag + flagCount) {
        if (HIWORD(wParam) == BN_CLICKED) events_->flagClicked(id - idFlag);
        return 0;
    }
    if (id == idHelp) {
        sendHelpKey();
        return 0;
    }
    if (id >= idNew && id <= idFreeLineLoads) {
        // A toolbar button leaves the focus where it is; the field being typed in is ended as "Arkiv" ends it.
        if (reinterpret_cast<HWND>(lParam) == toolbar_.handle()) events_->endTyping();
        events_->command(id);
        return 0;
    }
    return defaultProc(WM_COMMAND, wParam, lParam);
}

bool MainWindow::onContextMenu(HWND window, LPARAM lParam) {
    const POINT place = win32::placeOfMenu(window, lParam);
    if (window == flagButton()) {
        events_->flagMenu(place);
    } else if (window == loadPicture_.handle()) {
        events_->loadPictureMenu(place);
    } else if (window == toolbar_.handle() && toolbar_.at(place) == idOpen) {
        events_->openButtonMenu(place);
    } else {
        return false;
    }
    return true;
}

POINT MainWindow::belowOpenButton() const {
    return toolbar_.below(idOpen);
}

// A window that waits for another one's answer takes nothing; Windows lets it have the drop all the same.
void MainWindow::onDrop(HDROP drop) {
    const std::vector<std::string> paths = win32::filesDropped(drop);
    if (!IsWindowEnabled(handle())) {
        MessageBeep(MB_OK);
        return;
    }
    SetForegroundWindow(handle());
    events_->filesDropped(paths);
}

// The help command: as if the user had pressed F1.
void MainWindow::sendHelpKey() {
    const HWND focus = GetFocus() != nullptr ? GetFocus() : handle();
    PostMessageW(focus, WM_KEYDOWN, VK_F1, 1);
    PostMessageW(focus, WM_KEYUP, VK_F1, 1);
}

LRESULT MainWindow::defaultProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefFrameProcW(handle(), mdiClient_, message, wParam, lParam);
}

LRESULT MainWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        return onCommand(wParam, lParam);
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code != TBN_GETINFOTIPW) break;
        toolbar_.tell(*reinterpret_cast<NMTBGETINFOTIPW*>(lParam));
        return 0;
    case WM_TIMER:
        if (wParam != statusTimer) break;
        events_->statusDue();
        return 0;
    case WM_MENUSELECT:
        menuOnDiagram_ = lParam != 0 && reinterpret_cast<HMENU>(lParam) == GetMenu(handle()) &&
                         LOWORD(wParam) == diagramMenuPlace;
        break;
    case WM_INITMENUPOPUP:
        if (reinterpret_cast<HMENU>(wParam) == fileMenu_) events_->endTyping();
        break;
    case WM_CONTEXTMENU:
        if (!onContextMenu(reinterpret_cast<HWND>(wParam), lParam)) break;
        return 0;
    case WM_DROPFILES:
        onDrop(reinterpret_cast<HDROP>(wParam));
        return 0;
    case WM_DRAWITEM: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (item.CtlType != ODT_BUTTON) break;
        if (item.CtlID >= idSupportButton && item.CtlID < idSupportButton + supportCount) {
            win32::paintSupport(item.hDC, item.rcItem, dpi_, (item.itemState & ODS_SELECTED) != 0);
            return TRUE;
        }
        paintFlag(item.hDC, item.rcItem, static_cast<int>(item.CtlID) - idFlag,
                  (item.itemState & ODS_SELECTED) != 0, (item.itemState & ODS_FOCUS) != 0);
        return TRUE;
    }
    case WM_SIZE:
        // DefFrameProc would stretch the MDI client over the whole window.
        if (wParam != SIZE_MINIMIZED && shown_) sizeChanged({LOWORD(lParam), HIWORD(lParam)});
        return 0;
    case WM_GETMINMAXINFO: {
        const RECT work = win32::workAreaOf(handle());
        const SIZE least = frameFor(leastMainArea(dpi_));
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {std::min(least.cx, work.right - work.left),
                                                                 std::min(least.cy, work.bottom - work.top)};
        return 0;
    }
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
        // The pointer stands on the sketch; what can scroll is the form.
        SendMessageW(GetWindow(mdiClient_, GW_CHILD), message, wParam, lParam);
        return 0;
    case WM_SYSCOLORCHANGE:
        // Windows tells it to top-level windows only.
        SendMessageW(toolbar_.handle(), message, wParam, lParam);
        break;
    case WM_SETCURSOR:
        if (busy_ == 0) break;
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return TRUE;
    case WM_ACTIVATE:
        return onActivate(wParam, lParam);
    case WM_DPICHANGED:
        setDpi(HIWORD(wParam));
        events_->dpiChanged(dpi_);
        win32::setPlace(handle(), *reinterpret_cast<const RECT*>(lParam));
        layOut();
        return 0;
    case WM_CLOSE:
        events_->closing();
        return 0;
    case WM_QUERYENDSESSION:
        return events_->closing() ? TRUE : FALSE;
    case WM_HELP:
        events_->helpRequested(*reinterpret_cast<const HELPINFO*>(lParam));
        return TRUE;
    case WM_SYSCOMMAND:
        if ((wParam & 0xFFF0) != idHelp) break;
        sendHelpKey();
        return 0;
    case showErrorMessage:
        events_->showRunTimeError();
        return 0;
    default:
        break;
    }
    return defaultProc(message, wParam, lParam);
}

} // namespace varno
