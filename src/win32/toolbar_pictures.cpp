#include "win32/toolbar_pictures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "win32/smooth_drawing.h"

namespace varno::win32 {

namespace {

constexpr COLORREF ink = RGB(0x33, 0x3D, 0x47);
constexpr COLORREF paper = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF accent = RGB(0x1F, 0x6F, 0xB5);
constexpr COLORREF folder = RGB(0xF2, 0xC1, 0x4E);
constexpr COLORREF steel = RGB(0xC9, 0xD3, 0xDC);
constexpr COLORREF curve = RGB(0xB0, 0x2A, 0x2A);

// Draws on a grid of 20 by 20.
class Pencil {
  public:
    Pencil(HDC dc, int width) : dc_(dc), unit_(width / 20.0) {}

    void shape(COLORREF fill, std::initializer_list<POINTFLOAT> corners, COLORREF line = ink,
               float thick = 1.2f) {
        const UniquePen pen = makePen(line, thick);
        const UniqueBrush brush(CreateSolidBrush(fill));
        const Selected a(dc_, pen.get());
        const Selected b(dc_, brush.get());
        const std::vector<POINT> points = scaled(corners);
        Polygon(dc_, points.data(), static_cast<int>(points.size()));
    }
    void stroke(COLORREF line, float thick, std::initializer_list<POINTFLOAT> corners) {
        const UniquePen pen = makePen(line, thick);
        const Selected a(dc_, pen.get());
        const std::vector<POINT> points = scaled(corners);
        Polyline(dc_, points.data(), static_cast<int>(points.size()));
    }
    void arc(COLORREF line, float thick, float left, float right, float base, float sag) {
        const UniquePen pen = makePen(line, thick);
        const Selected a(dc_, pen.get());
        std::vector<POINT> points;
        constexpr int steps = 16;
        for (int i = 0; i <= steps; ++i) {
            const float t = static_cast<float>(i) / steps;
            points.push_back(at({left + (right - left) * t, base + sag * 4 * t * (1 - t)}));
        }
        Polyline(dc_, points.data(), static_cast<int>(points.size()));
    }

  private:
    UniquePen makePen(COLORREF colour, float thick) const {
        return UniquePen(
            CreatePen(PS_SOLID, static_cast<int>(std::lround(static_cast<double>(thick) * unit_)), colour));
    }
    POINT at(POINTFLOAT p) const {
        return {std::lround(static_cast<double>(p.x) * unit_), std::lround(static_cast<double>(p.y) * unit_)};
    }
    std::vector<POINT> scaled(std::initializer_list<POINTFLOAT> corners) const {
        std::vector<POINT> points;
        for (const POINTFLOAT corner : corners)
            points.push_back(at(corner));
        return points;
    }

    HDC dc_;
    double unit_;
};

void page(Pencil& pencil) {
    pencil.shape(paper, {{4, 2}, {12, 2}, {16, 6}, {16, 18}, {4, 18}});
    pencil.shape(steel, {{12, 2}, {12, 6}, {16, 6}});
}

void drawResult(Pencil& pencil) {
    page(pencil);
    for (float y = 8.5f; y <= 16; y += 2.5f)
        pencil.stroke(accent, 1.1f, {{6.5f, y}, {13.5f, y}});
}

void drawOpen(Pencil& pencil) {
    pencil.shape(folder, {{2, 16}, {2, 4}, {8, 4}, {10, 6}, {16, 6}, {16, 9}, {6, 9}});
    pencil.shape(RGB(0xFF, 0xDD, 0x86), {{2, 16}, {6, 9}, {19, 9}, {15.5f, 16}});
}

void drawFolder(Pencil& pencil) {
    pencil.shape(folder, {{2, 16}, {2, 4}, {8, 4}, {10, 6}, {18, 6}, {18, 16}});
}

void drawSave(Pencil& pencil) {
    pencil.shape(accent, {{3, 3}, {15, 3}, {17, 5}, {17, 17}, {3, 17}});
    pencil.shape(paper, {{6, 3.6f}, {13.5f, 3.6f}, {13.5f, 8}, {6, 8}}, accent, 0.6f);
    pencil.shape(paper, {{5.5f, 11}, {14.5f, 11}, {14.5f, 16.4f}, {5.5f, 16.4f}}, accent, 0.6f);
    pencil.stroke(ink, 1.0f, {{7.5f, 13.2f}, {12.5f, 13.2f}});
}

void drawPrinter(Pencil& pencil) {
    pencil.shape(paper, {{5.5f, 2.5f}, {14.5f, 2.5f}, {14.5f, 8}, {5.5f, 8}});
    pencil.shape(steel, {{2.5f, 7.5f}, {17.5f, 7.5f}, {17.5f, 14}, {2.5f, 14}});
    pencil.shape(paper, {{5.5f, 11.5f}, {14.5f, 11.5f}, {14.5f, 17.5f}, {5.5f, 17.5f}});
    pencil.stroke(accent, 1.0f, {{7.2f, 14}, {12.8f, 14}});
    pencil.stroke(accent, 1.0f, {{7.2f, 15.8f}, {12.8f, 15.8f}});
}

void drawCalculator(Pencil& pencil) {
    pencil.shape(steel, {{4, 2}, {16, 2}, {16, 18}, {4, 18}});
    pencil.shape(paper, {{6, 4}, {14, 4}, {14, 7.5f}, {6, 7.5f}}, ink, 0.8f);
    for (const float y : {10.2f, 13.0f, 15.8f}) {
        for (const float x : {7.0f, 10.0f, 13.0f}) {
            const bool equals = x > 12 && y > 15;
            pencil.stroke(equals ? curve : accent, 1.8f, {{x - 0.6f, y}, {x + 0.6f, y}});
        }
    }
}

void drawMoment(Pencil& pencil) {
    pencil.stroke(ink, 1.4f, {{1.5f, 9}, {18.5f, 9}});
    for (const float x : {2.0f, 10.0f, 18.0f})
        pencil.shape(steel, {{x, 9.5f}, {x - 1.6f, 12.5f}, {x + 1.6f, 12.5f}}, ink, 0.8f);
    pencil.arc(curve, 1.5f, 2, 8.4f, 9, 7);
    pencil.arc(curve, 1.5f, 11.6f, 18, 9, 7);
    pencil.stroke(curve, 1.5f, {{8.4f, 9}, {10, 3}, {11.6f, 9}});
}

void drawFreeLoads(Pencil& pencil) {
    pencil.shape(steel, {{1.5f, 14.5f}, {18.5f, 14.5f}, {18.5f, 17}, {1.5f, 17}}, ink, 0.8f);
    for (const float x : {6.0f, 14.0f}) {
        pencil.stroke(RGB(0x1E, 0x7E, 0x34), 1.7f, {{x, 2.5f}, {x, 13}});
        pencil.stroke(RGB(0x1E, 0x7E, 0x34), 1.7f, {{x - 2.4f, 10}, {x, 13}, {x + 2.4f, 10}});
    }
}

struct Picture {
    std::string_view key;
    void (*draw)(Pencil& pencil);
};
constexpr std::array pictures{
    Picture{"new", page},        Picture{"open", drawOpen},     Picture{"folder", drawFolder},
    Picture{"save", drawSave},   Picture{"print", drawPrinter}, Picture{"berakning", drawCalculator},
    Picture{"res1", drawResult}, Picture{"momk", drawMoment},   Picture{"fria", drawFreeLoads},
};

// On a square of that width.
void draw(std::string_view key, HDC dc, int width) {
    Pencil pencil(dc, width);
    std::ranges::find(pictures, key, &Picture::key)->draw(pencil);
}

} // namespace

UniqueIcon toolbarPicture(std::string_view key, int size) {
    return smoothIcon(size, [&](HDC dc, int width, int) { draw(key, dc, width); });
}

UniqueBitmap toolbarPictures(std::span<const std::string_view> keys, int size, bool faded) {
    const auto paint = [&](HDC dc, int, int height) {
        int left = 0;
        for (const std::string_view key : keys) {
            SetViewportOrgEx(dc, left, 0, nullptr);
            draw(key, dc, height);
            left += height;
        }
    };
    return smoothBitmap(size * static_cast<int>(keys.size()), size, paint, faded);
}

} // namespace varno::win32
