#include "shell/flag_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "shell/flag_pictures.h"
#include "win32/smooth_drawing.h"

namespace varno {

namespace {

COLORREF refOf(unsigned rgb) {
    return RGB((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

void fillStar(HDC dc, const FlagShape& shape, double scale) {
    constexpr int points = 10;
    constexpr double waist = 0.382; // inner to outer radius of a five-pointed star
    POINT corners[points];
    for (int i = 0; i < points; ++i) {
        const double radius = shape.width * (i % 2 == 0 ? 1.0 : waist);
        const double angle = std::numbers::pi * i / 5;
        corners[i] = {std::lround((shape.x + radius * std::sin(angle)) * scale),
                      std::lround((shape.y - radius * std::cos(angle)) * scale)};
    }
    Polygon(dc, corners, points);
}

void fillShape(HDC dc, const FlagShape& shape, double scale) {
    const auto px = [scale](double value) { return static_cast<int>(std::lround(value * scale)); };
    const win32::UniqueBrush brush(CreateSolidBrush(refOf(shape.colour)));
    if (shape.kind == FlagShape::rectangle) {
        const RECT box{px(shape.x), px(shape.y), px(shape.x + shape.width), px(shape.y + shape.height)};
        FillRect(dc, &box, brush.get());
        return;
    }
    const win32::Selected filled(dc, brush.get());
    const win32::Selected bare(dc, GetStockObject(NULL_PEN));
    fillStar(dc, shape, scale);
}

} // namespace

void paintFlag(HDC dc, const RECT& box, int flag, bool pressed, bool focused) {
    FillRect(dc, &box, GetSysColorBrush(COLOR_BTNFACE));
    const int border = std::max<int>(2, (box.right - box.left) / 40);
    RECT picture = box;
    InflateRect(&picture, -border, -border);
    if (pressed) OffsetRect(&picture, border / 2, border / 2);
    win32::drawSmooth(dc, picture, GetSysColor(COLOR_BTNFACE), [flag](HDC target, int, int height) {
        for (const FlagShape& shape : flagShapes(flag))
            fillShape(target, shape, height / 100.0);
    });
    InflateRect(&picture, 1, 1);
    FrameRect(dc, &picture, GetSysColorBrush(COLOR_BTNSHADOW));
    if (focused) DrawFocusRect(dc, &box);
}

} // namespace varno
