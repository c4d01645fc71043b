#include "win32/group_box.h"

#include <memory>

#include "win32/control_layer.h"
#include "win32/dpi.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

namespace {

// The caption, written beside the screen. Where it ends is seen and not measured: at some scalings letters are drawn wider or
// narrower than Windows says they are.
class Caption {
  public:
    Caption(HWND group, HDC dc) : dc_(dc), text_(wide(textOf(group))), memory_(CreateCompatibleDC(dc)) {
        const Selected letters(dc, reinterpret_cast<HFONT>(SendMessageW(group, WM_GETFONT, 0, 0)));
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc, &metrics);
        height_ = metrics.tmHeight;
        SIZE size{};
        GetTextExtentPoint32W(dc, text_.c_str(), static_cast<int>(text_.size()), &size);
        if (size.cx == 0) return;
        const LONG most = size.cx + size.cx / 4 + height_;
        bitmap_.reset(CreateCompatibleBitmap(dc, static_cast<int>(most), static_cast<int>(height_)));
        const Selected surface(memory_.get(), bitmap_.get());
        const Selected face(memory_.get(), GetCurrentObject(dc, OBJ_FONT));
        const RECT all{0, 0, most, height_};
        FillRect(memory_.get(), &all, GetSysColorBrush(COLOR_BTNFACE));
        SetBkMode(memory_.get(), TRANSPARENT);
        SetTextColor(memory_.get(), GetSysColor(IsWindowEnabled(group) ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
        TextOutW(memory_.get(), 0, 0, text_.c_str(), static_cast<int>(text_.size()));
        width_ = inkEnd(most);
    }
    LONG width() const { return width_; }
    LONG height() const { return height_; }
    void show(LONG x) const {
        if (width_ == 0) return;
        const Selected surface(memory_.get(), bitmap_.get());
        BitBlt(dc_, static_cast<int>(x), 0, static_cast<int>(width_), static_cast<int>(height_),
               memory_.get(), 0, 0, SRCCOPY);
    }

  private:
    LONG inkEnd(LONG most) const {
        const COLORREF ground = GetPixel(memory_.get(), static_cast<int>(most) - 1, 0);
        for (LONG x = most; x > 0; --x) {
            for (LONG y = 0; y < height_; ++y) {
                if (GetPixel(memory_.get(), static_cast<int>(x) - 1, static_cast<int>(y)) != ground) return x;
            }
        }
        return 0;
    }

    HDC dc_;
    std::wstring text_;
    UniqueDc memory_;
    UniqueBitmap bitmap_;
    LONG width_ = 0;
    LONG height_ = 0;
};

void paint(HWND group, HDC dc) {
    RECT box{};
    GetClientRect(group, &box);
    const Caption caption(group, dc);
    const int dpi = dpiOf(group);
    const LONG indent = MulDiv(captionIndent, dpi, USER_DEFAULT_SCREEN_DPI);
    const LONG room = MulDiv(captionRoom, dpi, USER_DEFAULT_SCREEN_DPI);
    const LONG top = caption.height() / 2;
    const UniquePen pen(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)));
    const Selected line(dc, pen.get());
    const POINT frame[] = {{indent - room, top}, {0, top},
                           {0, box.bottom - 1},  {box.right - 1, box.bottom - 1},
                           {box.right - 1, top}, {indent + caption.width() + room - 1, top}};
    Polyline(dc, frame, static_cast<int>(std::size(frame)));
    caption.show(indent);
}

// What was behind the old caption shows again; a frame has no background of its own.
void captionChanged(HWND group) {
    RECT box{};
    GetWindowRect(group, &box);
    const HWND form = GetParent(group);
    MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&box), 2);
    RedrawWindow(form, &box, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

class DrawnGroup : public ControlLayer {
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

LRESULT DrawnGroup::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND group = control();
    switch (message) {
    case WM_PAINT: {
        PAINTSTRUCT painting{};
        paint(group, BeginPaint(group, &painting));
        EndPaint(group, &painting);
        return 0;
    }
    case WM_PRINTCLIENT:
        paint(group, reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_SETTEXT: {
        // A button paints itself at once, without being asked to.
        const LRESULT result = DefWindowProcW(group, message, wParam, lParam);
        captionChanged(group);
        return result;
    }
    default:
        return below(message, wParam, lParam);
    }
}

} // namespace

void drawGroup(HWND group) {
    layOver(group, std::make_unique<DrawnGroup>());
}

} // namespace varno::win32
