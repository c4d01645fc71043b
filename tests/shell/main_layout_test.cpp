#include "shell/main_layout.h"

#include <gtest/gtest.h>

#include "input/form_layout.h"
#include "input/sketch.h"

namespace varno {
namespace {

constexpr int scales[] = {96, 120, 144, 192};

bool apart(const Area& one, const Area& other) {
    return one.right() <= other.x || other.right() <= one.x || one.bottom() <= other.y ||
           other.bottom() <= one.y;
}

// What holds in every window: everything is inside and nothing lies on anything else.
void expectSound(const MainLayout& layout, int width, int height) {
    const Area parts[] = {layout.toolbar,      layout.loadPicture, layout.slabStrip,   layout.flag,
                          layout.flagName,     layout.form,        layout.statusState, layout.statusFolder,
                          layout.statusLength, layout.statusResult};
    for (const Area& part : parts) {
        EXPECT_GE(part.x, 0);
        EXPECT_GE(part.width, 0);
        EXPECT_GE(part.y, 0);
        EXPECT_LE(part.right(), width);
        EXPECT_LE(part.bottom(), height);
        for (const Area& other : parts)
            EXPECT_TRUE(&part == &other || apart(part, other))
                << part.x << "," << part.y << " and " << other.x;
    }
    // The slab lies under its loads, whole.
    EXPECT_NEAR(layout.loadPicture.x - layout.slabStrip.x, pixelsOf(slabStripStart, layout.sketchDpi), 1);
    EXPECT_GE(layout.slabStrip.width, pixelsOf(slabStripStart + sketchLength, layout.sketchDpi));
    EXPECT_EQ(layout.slabStrip.y, layout.loadPicture.bottom());
}

TEST(MainLayout, TheNaturalSizeHasRoomForAllAtTheirOwnScale) {
    for (const int dpi : scales) {
        const Area natural = naturalMainArea(dpi);
        const MainLayout layout = mainLayout(natural.width, natural.height, dpi);
        expectSound(layout, natural.width, natural.height);
        EXPECT_EQ(layout.sketchDpi, dpi);
        EXPECT_EQ(layout.slabStrip.width, pixelsOf(slabStripWidth, dpi));
        EXPECT_GE(layout.form.width, pixelsOf(formWidth, dpi));
        EXPECT_GE(layout.form.height, pixelsOf(formHeight, dpi) - 1);
    }
}

TEST(MainLayout, HoldsInEveryWindow) {
    for (const int dpi : scales) {
        const Area least = leastMainArea(dpi);
        for (int width = least.width; width < 4000; width += 37) {
            for (int height = least.height; height < 2200; height += 61) {
                const MainLayout layout = mainLayout(width, height, dpi);
                expectSound(layout, width, height);
                if (::testing::Test::HasFailure()) FAIL() << width << " x " << height << " at " << dpi;
            }
        }
    }
}

TEST(MainLayout, TheSketchGrowsWithTheRoomThatTheFormDoesNotNeed) {
    const Area natural = naturalMainArea(96);
    const MainLayout larger = mainLayout(natural.width + 500, natural.height + 60, 96);
    // All of the height: 80 pixels have become 140.
    EXPECT_EQ(larger.sketchDpi, 96 * 140 / 80);
    EXPECT_GE(larger.form.height, pixelsOf(formHeight, 96) - 1);
    const MainLayout high = mainLayout(natural.width, natural.height + 1000, 96);
    EXPECT_GT(high.sketchDpi, 96);
    EXPECT_LE(high.flagName.right(), natural.width);
}

TEST(MainLayout, ALowWindowLeavesTheSketchItsScale) {
    EXPECT_EQ(mainLayout(1024, 540, 96).sketchDpi, 96);
    EXPECT_EQ(mainLayout(1920, 540, 96).sketchDpi, 96);
}

TEST(MainLayout, ANarrowWindowShrinksTheSketch) {
    const Area least = leastMainArea(96);
    const MainLayout layout = mainLayout(least.width, least.height, 96);
    EXPECT_LT(layout.sketchDpi, 96);
    EXPECT_GE(layout.sketchDpi, 48);
    EXPECT_GE(layout.form.height, 140);
}

TEST(MainLayout, TheBandStandsInTheMiddleOfAWideWindow) {
    const Area natural = naturalMainArea(96);
    EXPECT_EQ(mainLayout(natural.width, natural.height, 96).slabStrip.x, 8);
    EXPECT_EQ(mainLayout(natural.width + 400, natural.height, 96).slabStrip.x, 8 + 200);
}

} // namespace
} // namespace varno
