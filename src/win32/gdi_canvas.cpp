#include "win32/gdi_canvas.h"

#include <algorithm>
#include <cmath>

#include "win32/unique.h"

namespace varno::win32 {

COLORREF colourRef(Rgb rgb) {
    return RGB(rgb.red, rgb.green, rgb.blue);
}

COLORREF GdiCanvas::ref(Colour colour) const {
    const Rgb foreground{GetRValue(foreground_), GetGValue(foreground_), GetBValue(foreground_)};
    return colourRef((isLight(foreground) ? colour.onDark() : colour).rgb(foreground));
}

LONG GdiCanvas::px(double twips) const {
    // GDI takes 27 bits on some devices; what lies that far outside is not seen anyway.
    constexpr double outside = 1 << 26;
    return std::lround(std::clamp(twips * dpi_ / twipsPerInch, -outside, outside));
}

int GdiCanvas::penWidth(int width) const {
    // Rounded up at 150 %, the lines of a small sketch would run together.
    return std::max(1, static_cast<int>(width * twipsPerPixel * penDpi_ / twipsPerInch));
}

void GdiCanvas::line(Point from, Point to, Colour colour, int width) {
    // GDI makes a speck of it: a line load of 0 kN/m would be seen.
    if (from == to) return;
    const UniquePen pen(CreatePen(PS_SOLID, penWidth(width), ref(colour)));
    const Selected selected(dc_, pen.get());
    const POINT a = at(from);
    const POINT b = at(to);
    MoveToEx(dc_, a.x, a.y, nullptr);
    LineTo(dc_, b.x, b.y);
    // A line of one pixel leaves out its last one.
    if (penWidth(width) == 1) LineTo(dc_, b.x + 1, b.y);
}

void GdiCanvas::box(Point corner, Point opposite, Colour colour, Fill fill) {
    const POINT a = at(corner);
    const POINT b = at(opposite);
    const RECT box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
    if (fill == Fill::solid) {
        const UniqueBrush brush(CreateSolidBrush(ref(colour)));
        FillRect(dc_, &box, brush.get());
        return;
    }
    const UniquePen pen(CreatePen(PS_SOLID, penWidth(1), ref(colour)));
    const Selected outline(dc_, pen.get());
    const Selected hollow(dc_, GetStockObject(HOLLOW_BRUSH));
    Rectangle(dc_, box.left, box.top, box.right, box.bottom);
}

void GdiCanvas::disc(Point centre, double radius, Colour rim, Colour inside) {
    const UniquePen pen(CreatePen(PS_SOLID, penWidth(1), ref(rim)));
    const UniqueBrush brush(CreateSolidBrush(ref(inside)));
    const Selected outline(dc_, pen.get());
    const Selected filled(dc_, brush.get());
    const POINT low = at({centre.x - radius, centre.y - radius});
    const POINT high = at({centre.x + radius, centre.y + radius});
    Ellipse(dc_, low.x, low.y, high.x + 1, high.y + 1);
}

} // namespace varno::win32
