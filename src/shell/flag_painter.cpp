#include "shell/flag_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "win32/smooth_drawing.h"

namespace varno {

namespace {

// In hundredths of the flag's height; a flag is 160 wide and 100 high.
struct Stripe {
    COLORREF colour;
    double x;
    double y;
    double width;
    double height;
};
// Stars on a circle, as on the face of a clock.
struct Ring {
    double x;
    double y;
    double radius;
    double star; // the radius of a star
};
struct Flag {
    std::array<Stripe, 4> stripes; // back to front
    Ring stars;
};

constexpr COLORREF white = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF swedishBlue = RGB(0x00, 0x52, 0x93);
constexpr COLORREF swedishYellow = RGB(0xFE, 0xCB, 0x00);
constexpr COLORREF finnishBlue = RGB(0x00, 0x2F, 0x6C);
constexpr COLORREF europeBlue = RGB(0x00, 0x33, 0x99);
constexpr COLORREF europeGold = RGB(0xFF, 0xCC, 0x00);

constexpr Stripe whole(COLORREF colour) {
    return {colour, 0, 0, 160, 100};
}
constexpr Stripe swedishUpright{swedishYellow, 50, 0, 20, 100};
constexpr Stripe swedishBar{swedishYellow, 0, 40, 160, 20};

// The neutral picture of a case without load rules, and flags 1 to 6. The proportions are those of the flags' own
// laws: Sweden 5-2-9 by 4-2-4, Denmark 12-4-21 by 12-4-12, Finland 5-3-10 by 4-3-4. Flags 1 and 2 are both Swedish:
// the second, for the Eurocode, carries a ring of stars in its corner.
constexpr std::array<Flag, 7> flags{{
    {{whole(RGB(0xD8, 0xD8, 0xD8)), {RGB(0xA0, 0xA0, 0xA0), 66, 44, 28, 12}}, {}},
    {{whole(swedishBlue), swedishUpright, swedishBar}, {}},
    {{whole(swedishBlue), swedishUpright, swedishBar, {europeBlue, 82, 0, 78, 68}}, {121, 34, 25, 6}},
    {{whole(RGB(0xC8, 0x10, 0x2E)), {white, 52, 0, 17, 100}, {white, 0, 42, 160, 16}}, {}},
    {{whole(white), {finnishBlue, 44, 0, 27, 100}, {finnishBlue, 0, 36, 160, 28}}, {}},
    {{whole(white), {RGB(0xDC, 0x14, 0x3C), 0, 50, 160, 50}}, {}},
    {{whole(europeBlue)}, {80, 50, 33, 6.5}},
}};

void fillStripe(HDC dc, const Stripe& stripe, double scale) {
    const auto px = [scale](double value) { return static_cast<int>(std::lround(value * scale)); };
    const win32::UniqueBrush brush(CreateSolidBrush(stripe.colour));
    const RECT box{px(stripe.x), px(stripe.y), px(stripe.x + stripe.width), px(stripe.y + stripe.height)};
    FillRect(dc, &box, brush.get());
}

void fillStars(HDC dc, const Ring& ring, double scale) {
    constexpr int stars = 12;
    constexpr int points = 10;
    constexpr double waist = 0.382; // inner to outer radius of a five-pointed star
    const win32::UniqueBrush brush(CreateSolidBrush(europeGold));
    const win32::Selected filled(dc, brush.get());
    const win32::Selected bare(dc, GetStockObject(NULL_PEN));
    for (int star = 0; star < stars; ++star) {
        const double hour = 2 * std::numbers::pi * star / stars;
        POINT corners[points];
        for (int i = 0; i < points; ++i) {
            const double radius = ring.star * (i % 2 == 0 ? 1.0 : waist);
            const double angle = std::numbers::pi * i / 5;
            const double x = ring.x + ring.radius * std::sin(hour) + radius * std::sin(angle);
            const double y = ring.y - ring.radius * std::cos(hour) - radius * std::cos(angle);
            corners[i] = {std::lround(x * scale), std::lround(y * scale)};
        }
        Polygon(dc, corners, points);
    }
}

} // namespace

void paintFlag(HDC dc, const RECT& box, int flag, bool pressed, bool focused) {
    FillRect(dc, &box, GetSysColorBrush(COLOR_BTNFACE));
    const int border = std::max<int>(2, (box.right - box.left) / 40);
    RECT picture = box;
    InflateRect(&picture, -border, -border);
    if (pressed) OffsetRect(&picture, border / 2, border / 2);
    win32::drawSmooth(dc, picture, GetSysColor(COLOR_BTNFACE), [flag](HDC target, int, int height) {
        const Flag& shown = flags[static_cast<std::size_t>(flag)];
        for (const Stripe& stripe : shown.stripes)
            fillStripe(target, stripe, height / 100.0);
        if (shown.stars.star != 0) fillStars(target, shown.stars, height / 100.0);
    });
    InflateRect(&picture, 1, 1);
    FrameRect(dc, &picture, GetSysColorBrush(COLOR_BTNSHADOW));
    if (focused) DrawFocusRect(dc, &box);
}

} // namespace varno
