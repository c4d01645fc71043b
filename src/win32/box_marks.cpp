#include "win32/box_marks.h"

#include "drawing/colour.h"

namespace varno::win32 {

namespace {

constexpr COLORREF amber = RGB(255, 232, 163);

bool isLightRef(COLORREF colour) {
    return isLight({GetRValue(colour), GetGValue(colour), GetBValue(colour)});
}

// The user has chosen colours to see well by. The schemes of Windows for that say so; other dark ones do not.
bool hasOwnColours() {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0);
    return (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0 || isLightRef(GetSysColor(COLOR_WINDOWTEXT));
}

COLORREF readOn(COLORREF ground) {
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    return isLightRef(window) != isLightRef(ground) ? window : GetSysColor(COLOR_WINDOWTEXT);
}

} // namespace

void BoxMarks::show(HWND window, const std::map<int, std::string>& marks) {
    if (marks == marks_) return;
    redraw(window);
    marks_ = marks;
    redraw(window);
}

void BoxMarks::redraw(HWND window) const {
    for (const auto& [id, text] : marks_)
        RedrawWindow(GetDlgItem(window, id), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ERASE);
}

std::string BoxMarks::at(HWND window, POINT place) const {
    if (!IsChild(window, WindowFromPoint(place))) return {};
    for (const auto& [id, text] : marks_) {
        const HWND box = GetDlgItem(window, id);
        RECT area{};
        GetWindowRect(box, &area);
        if (IsWindowVisible(box) && PtInRect(&area, place)) return text;
    }
    return {};
}

std::string BoxMarks::ofFocus(HWND window) const {
    const HWND focus = GetFocus();
    if (focus == nullptr || GetParent(focus) != window) return {};
    const auto found = marks_.find(GetDlgCtrlID(focus));
    return found == marks_.end() ? std::string() : found->second;
}

// In the user's own colours that of a link: those of a hint are often the window's there, and a mark would not be seen.
std::optional<LRESULT> BoxMarks::ground(HDC dc, HWND box) const {
    if (!marks_.contains(GetDlgCtrlID(box))) return std::nullopt;
    const bool own = hasOwnColours();
    const COLORREF ground = own ? GetSysColor(COLOR_HOTLIGHT) : amber;
    SetTextColor(dc, own ? readOn(ground) : RGB(0, 0, 0));
    SetBkColor(dc, ground);
    SetDCBrushColor(dc, ground);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

} // namespace varno::win32
