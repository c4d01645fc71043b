// The sketch as it stands on the screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <set>

#include "edit_rig.h"

namespace varno::gui {
namespace {

constexpr COLORREF red = RGB(0x80, 0, 0);
constexpr COLORREF green = RGB(0, 0x80, 0);
constexpr int dpi = 96;

int pixel(double twips, int resolution = dpi) {
    return static_cast<int>(std::lround(twips * resolution / 1440));
}

// From the left to the right end of a span with the cantilever it carries, twips.
struct Block {
    double left;
    double right;
};

class EditSketch : public Editing {
  protected:
    EditSketch() {
        if (resolution_ != dpi) restartAt(dpi);
    }
    static void restartAt(int resolution) {
        resolution_ = resolution;
        restart({}, resolution);
    }
    static COLORREF black() { return GetSysColor(COLOR_BTNTEXT); }

    // 14 m: 600 twips a metre.
    static void openFourteenMetres(const Lines& lines = {}) {
        Lines all{{6, cells({"4.000", "4.000", "4.000"})}, {14, "1"}, {15, "1"}};
        all.insert(lines.begin(), lines.end());
        open(all);
    }
    // Where the blocks have vertical lines: about every 420 twips, an equal number of parts.
    static std::vector<int> hatching(std::initializer_list<Block> blocks) {
        std::set<int> columns;
        for (const Block& block : blocks) {
            const double length = block.right - block.left;
            const int parts = static_cast<int>(length / 420 + 0.9);
            for (int i = 0; i <= parts; ++i)
                columns.insert(pixel(block.left + i * length / parts));
        }
        return {columns.begin(), columns.end()};
    }
    static void expectButtons(const std::vector<int>& lefts, int resolution = dpi) {
        const Control strip = slabStrip();
        for (int i = 0; i <= 15; ++i) {
            const Control button = strip.item(idSupportButton + i);
            const bool used = i < static_cast<int>(lefts.size());
            EXPECT_EQ(button.visible(), used) << i;
            if (!used) continue;
            const RECT place = button.place();
            EXPECT_EQ(place.left, pixel(lefts[static_cast<std::size_t>(i)], resolution)) << i;
            EXPECT_EQ(place.top, pixel(90, resolution));
            EXPECT_EQ(place.right - place.left, pixel(90, resolution));
            EXPECT_EQ(place.bottom - place.top, pixel(195, resolution));
            EXPECT_EQ(button.text(), "");
        }
    }
    static void expectArrow(const Picture& picture, COLORREF colour, double x, double length) {
        const int column = pixel(x);
        const std::vector<int> rows = picture.rows(column, colour);
        ASSERT_FALSE(rows.empty()) << "no arrow at " << x;
        EXPECT_NEAR(rows.front(), pixel(800 - length), 1);
        EXPECT_NEAR(rows.back(), pixel(800), 1);
        const double head = length * 150 / 700;
        // The head, at four fifths of its width.
        const double wing = 0.8 * head;
        for (const double side : {-1.0, +1.0}) {
            const int expected = pixel(x + side * wing);
            const std::vector<int> drawn = picture.columns(pixel(800 - wing), colour);
            EXPECT_TRUE(
                std::any_of(drawn.begin(), drawn.end(), [&](int at) { return std::abs(at - expected) <= 2; }))
                << "no wing at " << expected;
            EXPECT_TRUE(std::none_of(drawn.begin(), drawn.end(), [&](int at) {
                const int beyond = (at - expected) * static_cast<int>(side);
                return beyond > 2 && beyond < pixel(150);
            })) << "the wing is wider than its share";
        }
    }

  private:
    static inline int resolution_ = dpi;
};

TEST_F(EditSketch, PicturesAndSupportButtonsStandInPlace) {
    openFourteenMetres();
    for (const Control& area : {loadPicture(), slabStrip()}) {
        EXPECT_EQ(area.className(), "VarnoPicture");
        EXPECT_TRUE(area.visible());
    }
    const RECT loads = loadPicture().place();
    const RECT strip = slabStrip().place();
    EXPECT_EQ(loads.bottom - loads.top, pixel(900));
    EXPECT_EQ(strip.bottom - strip.top, pixel(300));
    EXPECT_EQ(strip.right - strip.left, pixel(13290));
    EXPECT_EQ(strip.top, loads.bottom) << "directly under the load picture";
    expectButtons({900, 3300, 5700, 8100});

    spinTo(-1, "2");
    // 10 m: 840 twips a metre.
    settle();
    expectButtons({300 + 840, 300 + 4200, 300 + 7560});
}

TEST_F(EditSketch, ButtonsStandInPlaceOnASharperScreen) {
    restartAt(120);
    openFourteenMetres();
    expectButtons({900, 3300, 5700, 8100}, 120);
}

TEST_F(EditSketch, ButtonsStandOutFromTheGround) {
    for (const int resolution : {96, 120}) {
        restartAt(resolution);
        openFourteenMetres();
        const int middle = pixel(90 + 195 / 2.0, resolution);
        const std::vector<int> seen = grab(slabStrip()).columns(middle, black());
        for (const int left : {900, 3300, 5700, 8100}) {
            for (const int edge : {pixel(left, resolution), pixel(left + 90, resolution) - 1})
                EXPECT_TRUE(std::ranges::find(seen, edge) != seen.end()) << edge << " at " << resolution;
        }
    }
}

TEST_F(EditSketch, SlabIsDrawnInItsWholeLength) {
    openFourteenMetres();
    std::vector<int> bar;
    for (int x = pixel(340); x <= pixel(8740); ++x)
        bar.push_back(x);
    EXPECT_EQ(grab(slabStrip()).columns(4, red), bar);
    enter(Field::spv, 1, "9");
    EXPECT_EQ(grab(slabStrip()).columns(4, red), bar);
}

TEST_F(EditSketch, HatchingFollowsTheSpans) {
    openFourteenMetres();
    const int row = pixel(400);
    EXPECT_EQ(grab(loadPicture()).columns(row, black()), hatching({{0, 3000}, {3000, 5400}, {5400, 8400}}));
    enter(Field::spv, 3, "10");
    // 20 m: 420 twips a metre.
    expectText(Field::spv, 3, shown("10.00"));
    EXPECT_EQ(grab(loadPicture()).columns(row, black()), hatching({{0, 2100}, {2100, 3780}, {3780, 8400}}));
    expectButtons({300 + 420, 300 + 2100, 300 + 3780, 300 + 7980});
}

TEST_F(EditSketch, BlocksAreAsHighAsTheirShareOfTheLoad) {
    openFourteenMetres({{12, cells({"1.000", "1.000", "0.000"})}, {13, cells({"3.000", "1.000", "0.000"})}});
    const Picture picture = grab(loadPicture());
    EXPECT_EQ(picture.rows(pixel(10), black()).front(), pixel(0));
    EXPECT_EQ(picture.rows(pixel(4215), black()).front(), pixel(400)) << "half the load of span 1";
    EXPECT_EQ(picture.rows(pixel(6900), black()).front(), pixel(800)) << "no load";
}

TEST_F(EditSketch, WithoutLoadsTheBlocksAreFlat) {
    openFourteenMetres({{12, cells({"0.000", "0.000", "0.000"})}, {13, cells({"0.000", "0.000", "0.000"})}});
    const Picture picture = grab(loadPicture());
    const auto line = picture.columns(pixel(800), black());
    EXPECT_EQ(static_cast<int>(line.size()), picture.count(black())) << "nothing but the base line";
    ASSERT_FALSE(line.empty());
    EXPECT_EQ(line.front(), 0);
    EXPECT_EQ(line.back(), pixel(8400));
    EXPECT_EQ(line.size(), static_cast<std::size_t>(pixel(8400) + 1));
}

TEST_F(EditSketch, LineLoadsAreArrowsInProportion) {
    openFourteenMetres({{32, "2"}, {33, "1  0.000  5.000  "}, {34, "3  2.000  2.500  "}});
    const Picture picture = grab(loadPicture());
    expectArrow(picture, red, 600, 700);
    expectArrow(picture, red, 6600, 350);
    EXPECT_EQ(picture.count(green), 0);
    // The picture follows a change of the spans.
    enter(Field::konsv, "7");
    expectArrow(grab(loadPicture()), red, 7 * 420, 700);
}

TEST_F(EditSketch, ALineLoadOfZeroIsNotSeen) {
    openFourteenMetres({{32, "2"}, {33, "1  0.000  5.000  "}, {34, "3  2.000  0.000  "}});
    const Picture picture = grab(loadPicture());
    expectArrow(picture, red, 600, 700);
    for (int x = pixel(3000); x < pixel(8400); ++x)
        EXPECT_TRUE(picture.rows(x, red).empty()) << x;
}

TEST_F(EditSketch, LineLoadBeyondTheLastSpanStandsByTheStoredLengths) {
    // Span 5 begins behind span 4, which has the length of the default.
    openFourteenMetres({{32, "1"}, {33, "5  -5.500 5.000  "}});
    expectArrow(grab(loadPicture()), red, 13 * 600, 700);
}

TEST_F(EditSketch, UncoveringPaintsTheSamePixels) {
    openFourteenMetres({{32, "1"}, {33, "1  0.000  5.000  "}});
    for (const Control& area : {loadPicture(), slabStrip()}) {
        const Picture before = grab(area);
        EXPECT_GT(before.count(red), 0);
        RECT box{};
        GetWindowRect(area.handle(), &box);
        const HWND cover =
            CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, L"STATIC", L"",
                            WS_POPUP | WS_VISIBLE, box.left, box.top, box.right - box.left,
                            box.bottom - box.top, nullptr, nullptr, nullptr, nullptr);
        const auto painted = [&](bool covered) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0)
                DispatchMessageW(&message);
            return covered ? Picture::ofScreen(area.handle()).count(red) == 0
                           : Picture::ofScreen(area.handle()) == before;
        };
        EXPECT_TRUE(program().until([&] { return painted(true); }));
        DestroyWindow(cover);
        EXPECT_TRUE(program().until([&] { return painted(false); }));
    }
}

} // namespace
} // namespace varno::gui
