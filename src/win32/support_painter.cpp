#include "win32/support_painter.h"

#include <algorithm>

namespace varno::win32 {

void paintSupport(HDC dc, const RECT& box, int dpi, bool pressed) {
    FillRect(dc, &box, GetSysColorBrush(COLOR_BTNTEXT));
    const int edge = std::max(1, dpi / USER_DEFAULT_SCREEN_DPI);
    RECT inside = box;
    InflateRect(&inside, -edge, -edge);
    FillRect(dc, &inside, GetSysColorBrush(pressed ? COLOR_BTNSHADOW : COLOR_BTNFACE));
    if (!pressed) DrawEdge(dc, &inside, BDR_RAISEDINNER, BF_RECT);
}

} // namespace varno::win32
