#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

#include "input/sketch.h"
#include "input/sketch_picture.h"
#include "support/memory_files.h"

namespace varno {
namespace {

using varno::testing::errorOf;

constexpr Colour black = Colour::foreground();

struct Loaded {
    DesignCase designCase;
    SketchPicture picture;
    SlabSketch sketch{designCase, picture.loadPicture, picture.slabStrip, picture};

    explicit Loaded(std::initializer_list<float> lengths) {
        designCase.nfack = static_cast<std::int16_t>(lengths.size());
        int span = 0;
        for (const float length : lengths)
            designCase.spv(++span) = length;
    }
    std::vector<Drawn> loads() {
        sketch.computeGeometry();
        sketch.drawSpanLoads();
        return picture.loadPicture.drawn();
    }
    // The arrows alone.
    std::vector<Drawn> arrows() {
        sketch.fullRefresh();
        std::vector<Drawn> found;
        for (const Drawn& drawn : picture.loadPicture.drawn()) {
            const auto* line = std::get_if<LineDrawn>(&drawn);
            if (line != nullptr && line->width == 2) found.push_back(drawn);
        }
        return found;
    }
    void lineLoad(int i, int span, float distance, float load) {
        designCase.nllast = static_cast<std::int16_t>(i);
        designCase.llfnr(i) = static_cast<std::int16_t>(span);
        designCase.avst(i) = distance;
        designCase.lllast(i) = load;
    }
    void freeLineLoad(int i, int span, float distance, float load) {
        designCase.nllastf = static_cast<std::int16_t>(i);
        designCase.llfnrf(i) = static_cast<std::int16_t>(span);
        designCase.avstf(i) = distance;
        designCase.lllastf(i) = load;
    }
};

void addBlock(std::vector<Drawn>& drawn, double left, double right, double height,
              std::initializer_list<double> hatching) {
    drawn.emplace_back(BoxDrawn{{left, 800}, {right, 800 - height}, black, Fill::none});
    for (const double x : hatching)
        drawn.emplace_back(LineDrawn{{x, 800}, {x, 800 - height}, black, 1});
}

void addArrow(std::vector<Drawn>& drawn, double x, double shaft, double head, Colour colour) {
    drawn.emplace_back(LineDrawn{{x, 800}, {x, 800 - shaft}, colour, 2});
    drawn.emplace_back(LineDrawn{{x, 800}, {x - head, 800 - head}, colour, 2});
    drawn.emplace_back(LineDrawn{{x, 800}, {x + head, 800 - head}, colour, 2});
}

TEST(SpanLoads, ABlockOf840TwipsHasTwoPartsAndItsLastLineOnItsEdge) {
    // 10 m in all: 840 twips per metre.
    Loaded s{1, 8, 1};
    s.designCase.plast(1) = 1;
    s.designCase.flast(1) = 3;
    s.designCase.plast(2) = 1;
    s.designCase.flast(3) = 2;
    std::vector<Drawn> expected;
    addBlock(expected, 0, 840, 800, {0, 420, 840});
    addBlock(expected, 840, 7560, 200,
             {840, 1260, 1680, 2100, 2520, 2940, 3360, 3780, 4200, 4620, 5040, 5460, 5880, 6300, 6720, 7140,
              7560});
    addBlock(expected, 7560, 8400, 400, {7560, 7980, 8400});
    EXPECT_EQ(s.loads(), expected);
}

TEST(SpanLoads, TheOuterBlocksTakeInTheCantilevers) {
    // 20 m in all: 420 twips per metre.
    Loaded s{6, 4, 6};
    s.designCase.konsv = 1;
    s.designCase.konsh = 3;
    s.designCase.flast(1) = 2;
    s.designCase.flast(2) = 2;
    s.designCase.flast(3) = 1;
    std::vector<Drawn> expected;
    addBlock(expected, 0, 2940, 800, {0, 420, 840, 1260, 1680, 2100, 2520, 2940});
    addBlock(expected, 2940, 4620, 800, {2940, 3360, 3780, 4200, 4620});
    addBlock(expected, 4620, 8400, 400, {4620, 5040, 5460, 5880, 6300, 6720, 7140, 7560, 7980, 8400});
    EXPECT_EQ(s.loads(), expected);
}

TEST(SpanLoads, ASingleSpanHasTheWholeLengthForItsBlock) {
    Loaded s{2};
    s.designCase.konsv = 1;
    s.designCase.konsh = 1;
    s.designCase.flast(1) = 5;
    const std::vector<Drawn> drawn = s.loads();
    ASSERT_EQ(drawn.size(), 22u);
    EXPECT_EQ(drawn.front(), (Drawn{BoxDrawn{{0, 800}, {8400, 0}, black, Fill::none}}));
    EXPECT_EQ(drawn.back(), (Drawn{LineDrawn{{8400, 800}, {8400, 0}, black, 1}}));
}

TEST(SpanLoads, WithoutLoadsTheBlocksAreFlatButOutlinedAndHatched) {
    Loaded s{1, 8, 1};
    const std::vector<Drawn> drawn = s.loads();
    ASSERT_EQ(drawn.size(), 26u);
    for (const Drawn& one : drawn) {
        const auto* box = std::get_if<BoxDrawn>(&one);
        EXPECT_EQ(box != nullptr ? box->opposite.y : std::get<LineDrawn>(one).to.y, 800);
    }
}

TEST(SpanLoads, NegativeLoadsPointTheOtherWay) {
    Loaded s{1, 1};
    s.designCase.flast(1) = 2;
    s.designCase.plast(2) = -1;
    const std::vector<Drawn> drawn = s.loads();
    EXPECT_EQ(drawn.front(), (Drawn{BoxDrawn{{0, 800}, {4200, 0}, black, Fill::none}}));
    EXPECT_EQ(drawn.at(12), (Drawn{BoxDrawn{{4200, 800}, {8400, 1200}, black, Fill::none}}));
}

TEST(SpanLoads, PartsAreNeverMuchWiderThan420Twips) {
    // 8 m in all: 1050 twips per metre. Int(1050 / 420 + 0.9) = 3 parts.
    Loaded s{1, 6, 1};
    std::vector<Drawn> expected;
    addBlock(expected, 0, 1050, 0, {0, 350, 700, 1050});
    const std::vector<Drawn> drawn = s.loads();
    EXPECT_EQ(std::vector<Drawn>(drawn.begin(), drawn.begin() + 5), expected);
}

TEST(SpanLoads, ABlockTooNarrowForAPartIsADivisionByZero) {
    Loaded s{0.04f, 8, 1.96f}; // 33.6 twips wide
    EXPECT_EQ(errorOf([&] { s.loads(); }), errDivisionByZero);
    Loaded wide{0.06f, 8, 1.94f}; // 50.4
    EXPECT_EQ(errorOf([&] { wide.loads(); }), 0);
    Loaded flat{4, 0, 4};
    EXPECT_EQ(errorOf([&] { flat.loads(); }), errOverflow);
}

TEST(SpanLoads, ANegativeSpanIsOutlinedWithoutHatching) {
    Loaded s{10, -2, 2}; // 840 twips per metre
    s.designCase.flast(1) = 1;
    s.designCase.flast(2) = 1;
    s.designCase.flast(3) = 1;
    const std::vector<Drawn> drawn = s.loads();
    const Drawn negative = BoxDrawn{{8400, 800}, {6720, 0}, black, Fill::none};
    const auto found = std::find(drawn.begin(), drawn.end(), negative);
    ASSERT_NE(found, drawn.end());
    EXPECT_TRUE(std::holds_alternative<BoxDrawn>(*(found + 1)));

    Loaded narrow{10, -0.1f, 0.1f}; // -84 twips: no part at all
    EXPECT_EQ(errorOf([&] { narrow.loads(); }), errDivisionByZero);
}

TEST(SpanLoads, LinesFarOutsideThePictureDoNotHoldUpTheProgram) {
    Loaded s{1e9f, -1e9f, 1};
    const std::size_t count = s.loads().size();
    EXPECT_GT(count, 3u);
    EXPECT_LT(count, 100u);
    Loaded backwards{-1e9f, 1e9f, 1};
    EXPECT_LT(backwards.loads().size(), 100u);
    Loaded huge{3e38f, -3e38f, 1e-30f};
    EXPECT_EQ(errorOf([&] { huge.loads(); }), errOverflow);
}

TEST(LineLoads, TheArrowsScaleWithTheLargestOfBothSets) {
    // 14 m in all: 600 twips per metre.
    Loaded s{4, 4, 4};
    s.designCase.konsv = s.designCase.konsh = 1;
    s.lineLoad(1, 1, 0, 10);
    s.lineLoad(2, 3, 1.5f, 5);
    s.freeLineLoad(1, 2, 2, 20);
    std::vector<Drawn> expected;
    addArrow(expected, 600, 350, 75, red);
    addArrow(expected, 600 + 4800 + 900, 175, 37.5, red);
    addArrow(expected, 600 + 2400 + 1200, 700, 150, green);
    EXPECT_EQ(s.arrows(), expected);
    EXPECT_EQ(s.sketch.supportX(0), 600.0f);
}

TEST(LineLoads, TheFirstFreeOneCountsEvenWhenThereIsNone) {
    Loaded s{4};
    s.designCase.lllastf(1) = 5;
    float largest = 0;
    s.sketch.maxLineLoad(largest);
    EXPECT_EQ(largest, 5.0f);
    s.lineLoad(1, 1, 2, 1);
    std::vector<Drawn> expected;
    addArrow(expected, 4200, 140, 30, red);
    EXPECT_EQ(s.arrows(), expected);

    s.designCase.lllastf(1) = 0;
    s.designCase.lllastf(2) = 9; // the second one does not count
    s.sketch.maxLineLoad(largest);
    EXPECT_EQ(largest, 1.0f);
    s.designCase.nllastf = 2;
    s.sketch.maxLineLoad(largest);
    EXPECT_EQ(largest, 9.0f);
}

TEST(LineLoads, NothingIsDrawnWhenTheLargestIsZero) {
    Loaded s{4};
    s.lineLoad(1, 1, 1, 0);
    s.lineLoad(2, 1, 2, -3);
    EXPECT_TRUE(s.arrows().empty());
}

TEST(LineLoads, NegativeOnesPointUpwards) {
    Loaded s{4};
    s.lineLoad(1, 1, 2, -2);
    s.lineLoad(2, 1, 2, 4);
    std::vector<Drawn> expected;
    addArrow(expected, 4200, -350, -75, red);
    addArrow(expected, 4200, 700, 150, red);
    EXPECT_EQ(s.arrows(), expected);
}

TEST(LineLoads, BeyondTheLastSpanTheStoredLengthsPlaceThem) {
    Loaded s{4, 4};
    for (int span = 3; span <= 14; ++span)
        s.designCase.spv(span) = 2;
    s.lineLoad(1, 15, 1, 2);
    std::vector<Drawn> expected;
    addArrow(expected, (8.0 + 24 + 1) * 1050, 700, 150, red);
    EXPECT_EQ(s.arrows(), expected);
}

TEST(LineLoads, ASpanAboveFifteenIsOutsideTheArrays) {
    Loaded s{4, 4};
    s.lineLoad(1, 16, 1, 2);
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errSubscriptOutOfRange);
    s.lineLoad(1, 15, 1, 2);
    s.freeLineLoad(1, 16, 1, 2);
    EXPECT_EQ(errorOf([&] { s.sketch.lineLoadRefresh(); }), errSubscriptOutOfRange);
    s.freeLineLoad(1, 1, 1, 2);
    s.designCase.nllast = 6;
    EXPECT_EQ(errorOf([&] { s.sketch.fullRefresh(); }), errSubscriptOutOfRange);
}

} // namespace
} // namespace varno
