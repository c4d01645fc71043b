#include "win32/gdi_canvas.h"

#include <gtest/gtest.h>

#include "win32/unique.h"

namespace varno::win32 {
namespace {

constexpr int size = 64;
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

// A small picture in memory.
class Surface {
  public:
    explicit Surface(COLORREF ground) {
        const UniqueBrush brush(CreateSolidBrush(ground));
        const RECT all{0, 0, size, size};
        FillRect(dc_.get(), &all, brush.get());
    }
    HDC dc() const { return dc_.get(); }
    int count(COLORREF colour) const {
        int found = 0;
        for (int i = 0; i < size * size; ++i)
            found += GetPixel(dc_.get(), i % size, i / size) == colour ? 1 : 0;
        return found;
    }

  private:
    WindowDc screen_{nullptr};
    UniqueDc dc_{CreateCompatibleDC(screen_.get())};
    UniqueBitmap bitmap_{CreateCompatibleBitmap(screen_.get(), size, size)};
    Selected selected_{dc_.get(), bitmap_.get()};
};

// The width in pixels of an upright line over the whole surface.
int widthAt(int penDpi, int width) {
    const Surface surface(white);
    GdiCanvas(surface.dc(), 96, penDpi, black).line({480, -300}, {480, 2000}, Colour::foreground(), width);
    return surface.count(black) / size;
}

TEST(GdiCanvas, LinesStayThin) {
    EXPECT_EQ(widthAt(96, 1), 1);
    EXPECT_EQ(widthAt(120, 1), 1);
    EXPECT_EQ(widthAt(144, 1), 1) << "two pixels would make one black field of ten spans";
    EXPECT_EQ(widthAt(192, 1), 2);
    EXPECT_EQ(widthAt(96, 2), 2);
    EXPECT_EQ(widthAt(144, 2), 3);
}

TEST(GdiCanvas, ALineWithoutLengthLeavesNothing) {
    for (const int width : {1, 2}) {
        const Surface surface(white);
        GdiCanvas canvas(surface.dc(), 96, 96, black);
        canvas.line({480, 480}, {480, 480}, red, width);
        EXPECT_EQ(surface.count(white), size * size) << width;
        canvas.line({480, 480}, {480, 495}, red, width);
        EXPECT_LT(surface.count(white), size * size) << width;
    }
}

TEST(GdiCanvas, TheDarkColoursAreLightOnADarkGround) {
    const Surface paper(white);
    GdiCanvas(paper.dc(), 96, 96, black).box({0, 0}, {300, 300}, red, Fill::solid);
    EXPECT_GT(paper.count(RGB(0x80, 0, 0)), 0);

    const Surface dark(black);
    GdiCanvas canvas(dark.dc(), 96, 96, white);
    canvas.box({0, 0}, {300, 300}, red, Fill::solid);
    canvas.line({480, 0}, {480, 900}, green);
    canvas.line({600, 0}, {600, 900}, Colour::foreground());
    EXPECT_EQ(dark.count(RGB(0x80, 0, 0)), 0);
    EXPECT_GT(dark.count(RGB(255, 0, 0)), 0);
    EXPECT_GT(dark.count(RGB(0, 255, 0)), 0);
    EXPECT_GT(dark.count(white), 0);
}

} // namespace
} // namespace varno::win32
