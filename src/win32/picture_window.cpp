#include "win32/picture_window.h"

#include <oleacc.h>
#include <windowsx.h>

#include <utility>

#include "win32/gdi_canvas.h"
#include "win32/picture_files.h"
#include "win32/unique.h"

namespace varno::win32 {

void PictureWindow::create(HWND parent, int id, const std::string& name, const RecordingCanvas& picture) {
    picture_ = &picture;
    Window::create(L"VarnoPicture", name, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, parent,
                   reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), {0, 0, 0, 0});
    speakAs(name, ROLE_SYSTEM_GRAPHIC);
}

void PictureWindow::setScale(int surfaceDpi, int penDpi) {
    if (surfaceDpi == surfaceDpi_ && penDpi == penDpi_) return;
    surfaceDpi_ = surfaceDpi;
    penDpi_ = penDpi;
    redraw();
}

void PictureWindow::setTexts(std::vector<PictureText> texts) {
    texts_ = std::move(texts);
    redraw();
}

void PictureWindow::paint() {
    PAINTSTRUCT paint{};
    const HDC screen = BeginPaint(handle(), &paint);
    RECT client{};
    GetClientRect(handle(), &client);
    {
        const UniqueDc memory(CreateCompatibleDC(screen));
        const UniqueBitmap bitmap(CreateCompatibleBitmap(screen, client.right, client.bottom));
        const Selected selected(memory.get(), bitmap.get());
        FillRect(memory.get(), &client, GetSysColorBrush(COLOR_BTNFACE));
        GdiCanvas canvas(memory.get(), surfaceDpi_, penDpi_, GetSysColor(COLOR_BTNTEXT));
        replay(*picture_, canvas);
        const AnnotatedPicture words{{},
                                     client.right * twipsPerInch / surfaceDpi_,
                                     client.bottom * twipsPerInch / surfaceDpi_,
                                     texts_};
        drawTexts(memory.get(), words, surfaceDpi_, penDpi_, GetSysColor(COLOR_BTNTEXT),
                  GetSysColor(COLOR_BTNFACE));
        // Before the keyboard can open its menu, one sees that it is here.
        if (GetFocus() == handle()) DrawFocusRect(memory.get(), &client);
        BitBlt(screen, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
    }
    EndPaint(handle(), &paint);
}

void PictureWindow::pointerMoved(int x) {
    if (events_ == nullptr) return;
    if (!pointedAt_) {
        TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, handle(), 0};
        pointedAt_ = TrackMouseEvent(&leaving) != FALSE;
    }
    events_->pointedAt(x * twipsPerInch / surfaceDpi_);
}

LRESULT PictureWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        redraw();
        return 0;
    case WM_DRAWITEM:
        // A control that lies on the picture.
        return SendMessageW(GetParent(handle()), message, wParam, lParam);
    case WM_MOUSEMOVE:
        pointerMoved(GET_X_LPARAM(lParam));
        return 0;
    case WM_MOUSELEAVE:
        pointedAt_ = false;
        if (events_ != nullptr) events_->pointedAt(std::nullopt);
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    default:
        return defaultProc(message, wParam, lParam);
    }
}

} // namespace varno::win32
