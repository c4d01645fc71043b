#include "drawing/canvas.h"

#include <gtest/gtest.h>

#include "drawing/recording_canvas.h"
#include "support/memory_files.h"

namespace varno {
namespace {

using varno::testing::errorOf;

void drawSample(Canvas& canvas) {
    canvas.line({0, 800}, {10.5, 900}, green, 2);
    canvas.box({340, 75}, {8740, 50}, red, Fill::solid);
    canvas.box({0, 800}, {420, 0}, Colour::foreground());
    canvas.disc({940, 65}, 30, Colour::foreground(), brightWhite);
}

TEST(Colour, NumbersOfThePaletteAreTheSixteenColours) {
    EXPECT_EQ(green.rgb({1, 2, 3}), (Rgb{0, 128, 0}));
    EXPECT_EQ(red.rgb({1, 2, 3}), (Rgb{128, 0, 0}));
    EXPECT_EQ(brightWhite.rgb({1, 2, 3}), (Rgb{255, 255, 255}));
    EXPECT_EQ(Colour::numbered(0).rgb({1, 2, 3}), (Rgb{0, 0, 0}));
    EXPECT_EQ(errorOf([] { Colour::numbered(16); }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { Colour::numbered(-1); }), errSubscriptOutOfRange);
}

TEST(Colour, TheForegroundIsTheSurfacesOwn) {
    EXPECT_EQ(Colour::foreground().rgb({1, 2, 3}), (Rgb{1, 2, 3}));
    EXPECT_NE(Colour::foreground(), Colour::numbered(0));
}

TEST(Colour, OnADarkGroundTheDarkOnesGiveWayToTheirLightTwins) {
    EXPECT_EQ(red.onDark(), Colour::numbered(12));
    EXPECT_EQ(green.onDark(), Colour::numbered(10));
    EXPECT_EQ(brightWhite.onDark(), brightWhite);
    EXPECT_EQ(Colour::numbered(0).onDark(), Colour::numbered(0));
    EXPECT_EQ(Colour::foreground().onDark(), Colour::foreground());
    EXPECT_TRUE(isLight({255, 255, 255}));
    EXPECT_TRUE(isLight({255, 255, 0}));
    EXPECT_TRUE(isLight({0, 255, 0}));
    EXPECT_FALSE(isLight({0, 0, 0}));
    EXPECT_FALSE(isLight({0, 0, 255}));
}

TEST(RecordingCanvas, KeepsWhatIsDrawnInOrder) {
    RecordingCanvas canvas;
    drawSample(canvas);
    const std::vector<Drawn> expected{
        LineDrawn{{0, 800}, {10.5, 900}, green, 2},
        BoxDrawn{{340, 75}, {8740, 50}, red, Fill::solid},
        BoxDrawn{{0, 800}, {420, 0}, Colour::foreground(), Fill::none},
        DiscDrawn{{940, 65}, 30, Colour::foreground(), brightWhite},
    };
    EXPECT_EQ(canvas.drawn(), expected);
}

TEST(RecordingCanvas, ClearForgetsEverything) {
    RecordingCanvas canvas;
    drawSample(canvas);
    canvas.clear();
    EXPECT_TRUE(canvas.drawn().empty());
    EXPECT_EQ(canvas, RecordingCanvas());
}

TEST(RecordingCanvas, AReplayDrawsTheSameOverWhatIsThere) {
    RecordingCanvas picture;
    drawSample(picture);
    RecordingCanvas copy;
    replay(picture, copy);
    EXPECT_EQ(copy, picture);
    replay(picture, copy);
    EXPECT_EQ(copy.drawn().size(), 2 * picture.drawn().size());
    EXPECT_NE(copy, picture);
}

} // namespace
} // namespace varno
