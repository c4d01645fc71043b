#include "input/sketch.h"

#include <gtest/gtest.h>

#include <limits>

#include "drawing/svg_check.h"
#include "input/sketch_picture.h"
#include "support/memory_files.h"

namespace varno {
namespace {

using varno::testing::errorOf;

constexpr Colour black = Colour::foreground();

struct Sketched {
    DesignCase designCase;
    SketchPicture picture;
    int shown = 0;
    SlabSketch sketch{designCase, picture.loadPicture, picture.slabStrip, picture, [this] { ++shown; }};

    // Three spans of 4 m between cantilevers of 1 m.
    Sketched() {
        designCase.nfack = 3;
        for (int span = 1; span <= 3; ++span) {
            designCase.spv(span) = 4;
            designCase.flast(span) = 2;
        }
        designCase.konsv = designCase.konsh = 1;
    }
};

TEST(SlabSketch, DerivesLengthScaleAndSupports) {
    Sketched s;
    s.sketch.fullRefresh();
    EXPECT_EQ(s.sketch.totalLength(), 14.0f);
    EXPECT_EQ(s.sketch.sketchScale(), 600.0f);
    const float x[] = {600, 3000, 5400, 7800};
    const std::int16_t stripX[] = {940, 3340, 5740, 8140};
    for (int i = 0; i <= 3; ++i) {
        EXPECT_EQ(s.sketch.supportX(i), x[i]);
        EXPECT_EQ(s.sketch.supportStripX(i), stripX[i]);
    }
}

TEST(SlabSketch, PlacesAButtonUnderEachSupportAndHidesTheOthers) {
    Sketched s;
    s.sketch.fullRefresh();
    const double left[] = {900, 3300, 5700, 8100};
    for (int i = 0; i <= 15; ++i) {
        const SketchPicture::Button expected =
            i <= 3 ? SketchPicture::Button{true, left[i], 90} : SketchPicture::Button{false, 0, 0};
        EXPECT_EQ(s.picture.button(i), expected) << i;
    }
    s.designCase.nfack = 1;
    s.sketch.geometryRefresh();
    EXPECT_TRUE(s.picture.button(1).visible);
    EXPECT_FALSE(s.picture.button(2).visible);
}

TEST(SlabSketch, TheSlabIsARedBarOfFixedLength) {
    Sketched s;
    s.sketch.fullRefresh();
    const std::vector<Drawn> bar{BoxDrawn{{340, 75}, {8740, 50}, red, Fill::solid}};
    EXPECT_EQ(s.picture.slabStrip.drawn(), bar);
    s.designCase.spv(2) = 11;
    s.sketch.fullRefresh();
    EXPECT_EQ(s.picture.slabStrip.drawn(), bar);
}

TEST(SlabSketch, DerivedLengthsAreSingles) {
    Sketched s;
    s.designCase.nfack = 2;
    s.designCase.spv(1) = 16777216;
    s.designCase.spv(2) = 1;
    s.designCase.konsv = s.designCase.konsh = 0;
    s.sketch.computeGeometry();
    EXPECT_EQ(s.sketch.totalLength(), 16777216.0f);
    EXPECT_EQ(s.sketch.sketchScale(), static_cast<float>(8400.0 / 16777216.0));
}

TEST(SlabSketch, StripPlacesRoundHalfToEven) {
    Sketched s;
    s.designCase.nfack = 1;
    s.designCase.konsh = 0;
    s.designCase.konsv = 0.5f;
    s.designCase.spv(1) = 8399.5f;
    s.sketch.geometryRefresh(); // one twip per metre
    ASSERT_EQ(s.sketch.supportX(0), 0.5f);
    EXPECT_EQ(s.sketch.supportStripX(0), 340);
    s.designCase.konsv = 1.5f;
    s.designCase.spv(1) = 8398.5f;
    s.sketch.geometryRefresh();
    EXPECT_EQ(s.sketch.supportStripX(0), 342);
}

class Marks : public ::testing::TestWithParam<std::int16_t> {};

TEST_P(Marks, AreDrawnByTheirCode) {
    Sketched s;
    s.sketch.supportMark(2) = GetParam();
    s.sketch.markRight(2) = 50; // of 2400 twips
    s.sketch.markLeft(2) = 25;
    s.sketch.geometryRefresh();
    std::vector<Drawn> expected{BoxDrawn{{340, 75}, {8740, 50}, red, Fill::solid}};
    switch (GetParam()) {
    case 1:
        expected.emplace_back(DiscDrawn{{5740, 65}, 30, black, brightWhite});
        break;
    case 2:
    case 3:
        expected.emplace_back(BoxDrawn{{5740, 105}, {6940, 80}, red, Fill::solid});
        break;
    case 4:
        expected.emplace_back(DiscDrawn{{6940, 65}, 30, black, brightWhite});
        break;
    case 5:
        expected.emplace_back(BoxDrawn{{5740, 105}, {6940, 80}, red, Fill::solid});
        expected.emplace_back(BoxDrawn{{5740, 45}, {5140, 20}, red, Fill::solid});
        break;
    default:
        break;
    }
    EXPECT_EQ(s.picture.slabStrip.drawn(), expected);
}

INSTANTIATE_TEST_SUITE_P(SlabSketch, Marks, ::testing::Values(-1, 0, 1, 2, 3, 4, 5, 6));

TEST(SlabSketch, EndSupportsCarryNoMark) {
    Sketched s;
    s.sketch.supportMark(0) = s.sketch.supportMark(3) = s.sketch.supportMark(4) = 1;
    s.sketch.geometryRefresh();
    EXPECT_EQ(s.picture.slabStrip.drawn().size(), 1u);
}

TEST(SlabSketch, AGeometryRefreshLeavesTheLoadPictureAlone) {
    Sketched s;
    s.sketch.fullRefresh();
    const RecordingCanvas before = s.picture.loadPicture;
    s.designCase.spv(1) = 8;
    s.designCase.flast(1) = 7;
    s.sketch.geometryRefresh();
    EXPECT_EQ(s.picture.loadPicture, before);
    EXPECT_EQ(s.sketch.totalLength(), 18.0f);
}

TEST(SlabSketch, ALineLoadRefreshLeavesTheGeometryAlone) {
    Sketched s;
    s.sketch.fullRefresh();
    const RecordingCanvas strip = s.picture.slabStrip;
    const RecordingCanvas loads = s.picture.loadPicture;
    s.designCase.nllast = 1;
    s.designCase.llfnr(1) = 1;
    s.designCase.lllast(1) = 3;
    s.designCase.spv(3) = 7;
    s.sketch.lineLoadRefresh();
    EXPECT_EQ(s.picture.slabStrip, strip);
    EXPECT_EQ(s.sketch.totalLength(), 14.0f);
    EXPECT_NE(s.picture.loadPicture, loads);
}

TEST(SlabSketch, ASlabWithoutLengthIsADivisionByZero) {
    Sketched s;
    s.sketch.fullRefresh();
    const RecordingCanvas before = s.picture.slabStrip;
    for (int span = 1; span <= 3; ++span)
        s.designCase.spv(span) = 0;
    s.designCase.konsv = 1;
    s.designCase.konsh = -1;
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errDivisionByZero);
    EXPECT_EQ(errorOf([&] { s.sketch.geometryRefresh(); }), errDivisionByZero);
    EXPECT_EQ(s.picture.slabStrip, before);
}

TEST(SlabSketch, FifteenSpansAreDrawnAndSixteenAreOutsideTheArrays) {
    Sketched s;
    s.designCase.nfack = 15;
    for (int span = 1; span <= 15; ++span)
        s.designCase.spv(span) = 4;
    s.sketch.fullRefresh();
    EXPECT_TRUE(s.picture.button(15).visible);
    EXPECT_EQ(s.sketch.totalLength(), 62.0f);
    s.designCase.nfack = 16;
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { s.sketch.drawSpanLoads(); }), errSubscriptOutOfRange);
    s.designCase.nfack = -3;
    EXPECT_EQ(errorOf([&] { s.sketch.geometryRefresh(); }), errSubscriptOutOfRange);
}

TEST(SlabSketch, APlaceBeyondSixteenBitsIsAnOverflow) {
    Sketched s;
    s.designCase.spv(1) = 100; // the second span turns back: 8 m in all, 1050 twips per metre
    s.designCase.spv(2) = -98;
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errOverflow);
    EXPECT_TRUE(s.picture.button(0).visible); // what came before stays as drawn
    s.designCase.spv(1) = std::numeric_limits<float>::max();
    s.designCase.spv(2) = std::numeric_limits<float>::max();
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errOverflow);
    s.designCase.nfack = 1;
    s.designCase.konsv = s.designCase.konsh = 0;
    s.designCase.spv(1) = std::numeric_limits<float>::denorm_min();
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errOverflow);
}

TEST(SlabSketch, TheNextGoodRefreshHealsAPictureThatAnErrorCutShort) {
    Sketched good;
    good.sketch.fullRefresh();

    Sketched s;
    s.designCase.spv(2) = 0; // its block cannot be hatched
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errOverflow);
    EXPECT_FALSE(s.picture.loadPicture.drawn().empty());
    EXPECT_FALSE(s.picture == good.picture);
    s.designCase.spv(2) = 4;
    s.sketch.fullRefresh();
    EXPECT_TRUE(s.picture == good.picture);
}

TEST(SlabSketch, EveryRefreshIsAnnouncedAlsoOneThatAnErrorEnds) {
    Sketched s;
    s.sketch.fullRefresh();
    s.sketch.geometryRefresh();
    s.sketch.lineLoadRefresh();
    EXPECT_EQ(s.shown, 3);
    s.designCase.spv(2) = 0;
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errOverflow);
    EXPECT_EQ(s.shown, 4);
}

TEST(SlabSketch, TheSketchAsSvgIsWellFormedAndHoldsBothPictures) {
    Sketched s;
    s.sketch.fullRefresh();
    const std::string svg = svgOf(s.picture);
    EXPECT_EQ(varno::testing::svgFault(svg), "");
    EXPECT_NE(svg.find("viewBox=\"0 0 9080 1200\""), std::string::npos);
    // The slab lies under the first block, which begins at its left end.
    EXPECT_NE(svg.find("<svg x=\"325\" y=\"0\" width=\"8440\" height=\"900\" viewBox=\"-15 0 8440 900\">\n"
                       "<path d=\"M0 800 L3000 800 L3000 0 L0 0 Z\""),
              std::string::npos)
        << svg;
    EXPECT_NE(svg.find("<svg x=\"0\" y=\"900\" width=\"9080\" height=\"300\" viewBox=\"0 0 9080 300\">\n"
                       "<path d=\"M340 75 L8740 75 L8740 50 L340 50 Z\""),
              std::string::npos);
    EXPECT_NE(svg.find("M900 90 L990 90 L990 285"), std::string::npos);
}

} // namespace
} // namespace varno
