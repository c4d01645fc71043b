#include "win32/line_edit.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "controls/number_fit.h"
#include "win32/control_layer.h"
#include "win32/dpi.h"
#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::win32 {

namespace {

constexpr int insideMargin = 1; // above and below the text, as Windows keeps it

UniqueFont smaller(HFONT font, int percent) {
    LOGFONTW face{};
    GetObjectW(font, sizeof face, &face);
    face.lfHeight = MulDiv(face.lfHeight, percent, 100);
    return UniqueFont(CreateFontIndirectW(&face));
}

int widthIn(HFONT font, const std::wstring& text) {
    if (text.empty()) return 0;
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const Selected selected(dc.get(), font);
    SIZE size{};
    GetTextExtentPoint32W(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

class LineEdit : public ControlLayer {
  public:
    explicit LineEdit(HWND edit)
        : isNumber_((GetWindowLongPtrW(edit, GWL_STYLE) & ES_RIGHT) != 0),
          isBare_((GetWindowLongPtrW(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) == 0) {}

  private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void takeFont(HFONT font);
    void useFont(HFONT font, int margin);
    void centre(RECT& client);
    void paintAround();
    void paintCut();
    HBRUSH ground(HDC dc) const;
    void fit();
    void tell();

    bool isNumber_;
    bool isBare_;
    HFONT font_ = nullptr; ///< the one that was given
    UniqueFont small_;
    NumberFit fit_{0, true};
    bool pointed_ = false; ///< the pointer is over it
    bool told_ = false;
    bool fitting_ = false;
    int above_ = 0; ///< what the client area was lowered by, and raised by at its end
    int below_ = 0;
};

HBRUSH LineEdit::ground(HDC dc) const {
    const bool open =
        IsWindowEnabled(control()) && (GetWindowLongPtrW(control(), GWL_STYLE) & ES_READONLY) == 0;
    return reinterpret_cast<HBRUSH>(
        SendMessageW(GetParent(control()), open ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC,
                     reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control())));
}

void LineEdit::centre(RECT& client) {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control(), WM_GETFONT, 0, 0));
    const UniqueDc dc(CreateCompatibleDC(nullptr));
    const Selected selected(dc.get(), font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc.get(), &metrics);
    const int spare = static_cast<int>(client.bottom - client.top - metrics.tmHeight - 2 * insideMargin);
    above_ = spare > 0 ? spare / 2 : 0;
    below_ = spare > 0 ? spare - above_ : 0;
    client.top += above_;
    client.bottom -= below_;
}

// What lies between the border and the client area.
void LineEdit::paintAround() {
    if (above_ == 0 && below_ == 0) return;
    RECT window{};
    GetWindowRect(control(), &window);
    RECT client{};
    GetClientRect(control(), &client);
    MapWindowPoints(control(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&client, -window.left, -window.top);
    const HDC dc = GetWindowDC(control());
    const HBRUSH brush = ground(dc);
    const RECT top{client.left, client.top - above_, client.right, client.top};
    const RECT bottom{client.left, client.bottom, client.right, client.bottom + below_};
    FillRect(dc, &top, brush);
    FillRect(dc, &bottom, brush);
    ReleaseDC(control(), dc);
}

void LineEdit::paintCut() {
    PAINTSTRUCT painting{};
    const HDC dc = BeginPaint(control(), &painting);
    RECT box{};
    GetClientRect(control(), &box);
    FillRect(dc, &box, ground(dc));
    const Selected letters(dc, reinterpret_cast<HFONT>(SendMessageW(control(), WM_GETFONT, 0, 0)));
    SetBkMode(dc, TRANSPARENT);
    if (!IsWindowEnabled(control())) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    DrawTextW(dc, wide(textOf(control())).c_str(), -1, &box,
              DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    EndPaint(control(), &painting);
}

void LineEdit::useFont(HFONT font, int margin) {
    below(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    // A new font brings margins of its own, which leave a number box so little room that it scrolls the first
    // digit of "0,170" away when the caret stands behind the last. A path without a frame begins where the label above
    // it begins.
    const int side = isNumber_ ? margin : 0;
    if (isNumber_ || isBare_) below(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(side, side));
    SetWindowPos(control(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void LineEdit::takeFont(HFONT font) {
    font_ = font;
    fit_ = {0, true};
    small_.reset();
    useFont(font, MulDiv(1, dpiOf(control()), USER_DEFAULT_SCREEN_DPI));
    fit();
}

void LineEdit::fit() {
    if (!isNumber_ || font_ == nullptr || fitting_) return;
    fitting_ = true;
    const std::wstring text = wide(textOf(control()));
    RECT inside{};
    below(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    // The caret takes a pixel behind the last digit. No digits fit a box that has no size yet.
    const int room = std::max(0, static_cast<int>(inside.right - inside.left) - 1);
    std::array<int, faceSizes.size()> widths{};
    std::array<UniqueFont, faceSizes.size()> fonts;
    for (std::size_t face = 0; face < faceSizes.size(); ++face) {
        if (face > 0) fonts[face] = smaller(font_, faceSizes[face]);
        widths[face] = widthIn(face > 0 ? fonts[face].get() : font_, text);
        if (widths[face] <= room) break;
    }
    // Those that were not measured are not asked for.
    const NumberFit now = fitNumber(widths, room);
    const bool other = now.face != fit_.face;
    const bool mark = now.whole != fit_.whole;
    fit_ = now;
    if (other) {
        UniqueFont fresh = std::move(fonts[now.face]);
        useFont(now.face == 0 ? font_ : fresh.get(), MulDiv(1, dpiOf(control()), USER_DEFAULT_SCREEN_DPI));
        small_ = std::move(fresh);
    }
    if (other || mark || !now.whole) InvalidateRect(control(), nullptr, TRUE);
    fitting_ = false;
    tell();
}

void LineEdit::tell() {
    const bool wanted = !fit_.whole && (pointed_ || GetFocus() == control());
    if (!wanted && !told_) return;
    told_ = wanted;
    SendMessageW(GetParent(control()), numberCut, wanted ? TRUE : FALSE, reinterpret_cast<LPARAM>(control()));
}

bool changesText(UINT message) {
    switch (message) {
    case WM_SETTEXT:
    case WM_CHAR:
    case WM_KEYDOWN:
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL:
        return true;
    default:
        return false;
    }
}

LRESULT LineEdit::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SETFONT:
        takeFont(reinterpret_cast<HFONT>(wParam));
        return 0;
    case WM_NCCALCSIZE: {
        const LRESULT result = below(message, wParam, lParam);
        centre(*reinterpret_cast<RECT*>(lParam));
        return result;
    }
    case WM_NCPAINT: {
        const LRESULT result = below(message, wParam, lParam);
        paintAround();
        return result;
    }
    case WM_NCHITTEST: {
        // A click above or below the text is one into the box.
        const LRESULT place = below(message, wParam, lParam);
        return place == HTNOWHERE || place == HTBORDER ? HTCLIENT : place;
    }
    case WM_PAINT:
        if (fit_.whole || GetFocus() == control()) break;
        paintCut();
        return 0;
    case WM_MOUSEMOVE:
        if (!pointed_ && !fit_.whole) {
            TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, control(), 0};
            pointed_ = TrackMouseEvent(&leave) != FALSE;
            tell();
        }
        break;
    case WM_MOUSELEAVE:
        pointed_ = false;
        tell();
        break;
    default:
        break;
    }
    const LRESULT result = below(message, wParam, lParam);
    if (changesText(message) || message == WM_SIZE) fit();
    if (message == WM_ENABLE) RedrawWindow(control(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && !fit_.whole) {
        InvalidateRect(control(), nullptr, TRUE);
        tell();
    }
    return result;
}

} // namespace

void dressLineEdit(HWND edit) {
    layOver(edit, std::make_unique<LineEdit>(edit));
}

} // namespace varno::win32
