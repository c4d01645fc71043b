// How the input form scrolls; the rest of it is in input_form_window.cpp.
#include "input/form_layout.h"
#include "input/input_form_window.h"

namespace varno {

namespace {

constexpr int lineHeight = raster(24); // of the grid
constexpr int roomAround = raster(24); // seen around the control with the focus

int thickness(int dpi) {
    return GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(dpi));
}

void tellBar(HWND window, int bar, const ScrollAxis& axis) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = axis.content() - 1;
    info.nPage = static_cast<UINT>(axis.page());
    info.nPos = axis.position();
    SetScrollInfo(window, bar, &info, TRUE);
}

} // namespace

void InputFormWindow::fill(int width, int height) {
    SetWindowPos(handle(), nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    layOut();
    const HWND focus = GetFocus();
    if (focus != nullptr && GetParent(focus) == handle()) reached(focus);
}

void InputFormWindow::layOut() {
    if (fitting_) return;
    fitting_ = true;
    RECT box{};
    GetWindowRect(handle(), &box);
    const PixelSize content{px(formWidth), px(formHeight)};
    const PixelSize room{static_cast<int>(box.right - box.left), static_cast<int>(box.bottom - box.top)};
    const ScrollBars bars = scrollBarsFor(content, room, thickness(dpi()));
    ShowScrollBar(handle(), SB_VERT, bars.vertical);
    ShowScrollBar(handle(), SB_HORZ, bars.horizontal);
    RECT client{};
    GetClientRect(handle(), &client);
    across_.fit(content.width, client.right);
    down_.fit(content.height, client.bottom);
    tellBars();
    setOrigin({across_.offset(), down_.offset()});
    FormWindow::layOut();
    fitting_ = false;
}

void InputFormWindow::tellBars() {
    // A range that fits would take the bar away, and one that is told of brings it back.
    if (across_.most() > 0) tellBar(handle(), SB_HORZ, across_);
    if (down_.most() > 0) tellBar(handle(), SB_VERT, down_);
}

void InputFormWindow::scrollTo(int x, int y) {
    across_.moveTo(x);
    down_.moveTo(y);
    const POINT before = origin();
    const POINT now{across_.offset(), down_.offset()};
    if (now.x == before.x && now.y == before.y) return;
    hint_.hide();
    setOrigin(now);
    ScrollWindowEx(handle(), now.x - before.x, now.y - before.y, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    tellBars();
    UpdateWindow(handle());
}

void InputFormWindow::reached(HWND control) {
    RECT box{};
    GetWindowRect(control, &box);
    MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&box), 2);
    const int around = px(roomAround);
    ScrollAxis across = across_;
    ScrollAxis down = down_;
    across.reveal(box.left - origin().x, box.right - origin().x, around);
    down.reveal(box.top - origin().y, box.bottom - origin().y, around);
    scrollTo(across.position(), down.position());
}

void InputFormWindow::scrolled(int bar, int request) {
    const ScrollAxis& axis = bar == SB_VERT ? down_ : across_;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(handle(), bar, &info);
    int position = axis.position();
    switch (request) {
    case SB_LINEUP:
        position -= px(lineHeight);
        break;
    case SB_LINEDOWN:
        position += px(lineHeight);
        break;
    case SB_PAGEUP:
        position -= axis.page();
        break;
    case SB_PAGEDOWN:
        position += axis.page();
        break;
    case SB_TOP:
        position = 0;
        break;
    case SB_BOTTOM:
        position = axis.most();
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        position = info.nTrackPos;
        break;
    default:
        return;
    }
    scrollTo(bar == SB_HORZ ? position : across_.position(), bar == SB_VERT ? position : down_.position());
}

void InputFormWindow::wheelTurned(WPARAM wParam, bool sideways) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const ScrollAxis& axis = sideways ? across_ : down_;
    const int perNotch =
        lines == WHEEL_PAGESCROLL ? axis.page() : static_cast<int>(lines) * px(lineHeight) / 2;
    const int by = wheel_.pixels(static_cast<short>(HIWORD(wParam)), perNotch);
    if (sideways) {
        scrollTo(across_.position() + by, down_.position());
    } else {
        scrollTo(across_.position(), down_.position() - by);
    }
}

bool InputFormWindow::scrollMessage(UINT message, WPARAM wParam) {
    switch (message) {
    case WM_VSCROLL:
        scrolled(SB_VERT, LOWORD(wParam));
        return true;
    case WM_HSCROLL:
        scrolled(SB_HORZ, LOWORD(wParam));
        return true;
    case WM_MOUSEWHEEL:
        // With Shift the wheel goes sideways, as in other programs; towards the user is to the right.
        if ((LOWORD(wParam) & MK_SHIFT) != 0) {
            wheelTurned(MAKEWPARAM(0, static_cast<WORD>(-static_cast<short>(HIWORD(wParam)))), true);
        } else {
            wheelTurned(wParam, false);
        }
        return true;
    case WM_MOUSEHWHEEL:
        wheelTurned(wParam, true);
        return true;
    default:
        return false;
    }
}

} // namespace varno
