#include "diagram/diagram_layout.h"

#include <gtest/gtest.h>

#include "diagram/moment_diagram.h"

namespace varno {
namespace {

constexpr int scales[] = {96, 120, 144, 192};

void expectInside(const Area& part, int width, int height) {
    EXPECT_GE(part.x, 0);
    EXPECT_GE(part.y, 0);
    EXPECT_LE(part.right(), width);
    EXPECT_LE(part.bottom(), height);
}

TEST(DiagramLayout, TheNaturalWindowHasThePictureAtItsOwnScale) {
    for (const int dpi : scales) {
        const DiagramLayout layout =
            diagramLayout(pixelsOf(naturalDiagramWidth, dpi), pixelsOf(naturalDiagramHeight, dpi), dpi);
        EXPECT_EQ(layout.pictureDpi, dpi);
        EXPECT_EQ(layout.picture.width, pixelsOf(diagramWidth, dpi));
        EXPECT_EQ(layout.picture.height, pixelsOf(diagramHeight, dpi));
        EXPECT_NEAR(layout.picture.x, pixelsOf(150, dpi), 1);
        EXPECT_EQ(layout.picture.y, pixelsOf(150, dpi));
    }
}

TEST(DiagramLayout, ThePictureTakesTheRoomAndStaysWhole) {
    for (const int dpi : scales) {
        const Area least = leastDiagramArea(dpi);
        for (int width = least.width; width < 4000; width += 37) {
            for (int height = least.height; height < 2200; height += 61) {
                const DiagramLayout layout = diagramLayout(width, height, dpi);
                expectInside(layout.picture, width, height);
                for (const Area& part : {layout.plotButton, layout.reading, layout.age})
                    expectInside(part, width, height);
                EXPECT_LE(layout.picture.bottom(), layout.plotButton.y);
                EXPECT_LE(layout.picture.bottom(), layout.reading.y + 1);
                EXPECT_GE(layout.pictureDpi, dpi / 2);
                // A little larger it would not go in.
                const bool across =
                    pixelsOf(diagramWidth, layout.pictureDpi + 2) > width - pixelsOf(300, dpi);
                const bool down =
                    pixelsOf(diagramHeight, layout.pictureDpi + 2) > height - pixelsOf(900, dpi);
                EXPECT_TRUE(across || down);
                EXPECT_NEAR(layout.picture.x, width - layout.picture.right(), 1) << "in the middle";
                if (::testing::Test::HasFailure()) FAIL() << width << " x " << height << " at " << dpi;
            }
        }
    }
}

} // namespace
} // namespace varno
