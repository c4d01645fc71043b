#include <gtest/gtest.h>

#include <algorithm>

#include "diagram/moment_curves.h"

namespace varno::testing {
namespace {

constexpr Colour black = Colour::foreground();

// 50 everywhere but -100 over the first support.
Curve oneSpan() {
    return {CurveSpan(0.5, 50).at(0, "-100")};
}

// How the curve of oneSpan is drawn, with 300 twips between its points: cantilever ordinates 360 twips apart.
std::vector<Drawn> oneSpanDrawn(Colour colour) {
    std::vector<Drawn> drawn{
        lineOf({340, 2000}, {340, 2000}, colour), lineOf({700, 2000}, {700, 860}, colour),
        lineOf({340, 2000}, {940, 100}, colour),  BoxDrawn{{940, 100}, {940, 2000}, black, Fill::none},
        lineOf({940, 100}, {1240, 2950}, colour), lineOf({1240, 2950}, {1240, 2000}, colour)};
    for (double x = 1240; x < 6940; x += 300) {
        drawn.push_back(lineOf({x, 2950}, {x + 300, 2950}, colour));
        drawn.push_back(lineOf({x + 300, 2950}, {x + 300, 2000}, colour));
    }
    drawn.push_back(lineOf({8740, 2000}, {8740, 2000}, colour));
    drawn.push_back(lineOf({8380, 2000}, {8380, 2570}, colour));
    drawn.push_back(lineOf({6940, 2950}, {8740, 2000}, colour));
    return drawn;
}

const Drawn baseLine = lineOf({8740, 2000}, {340, 2000}, black);

std::vector<Drawn> operator+(std::vector<Drawn> a, const std::vector<Drawn>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(MomentDiagram, MeasuresTheLargestMomentOfBothCurves) {
    DiagramRig rig;
    EXPECT_EQ(rig.diagram.momentMax(), 0.0f);
    rig.measure(momentFileOf({CurveSpan(999, 1).at(7, "-3.5")}, {CurveSpan(-1000, 2)}));
    EXPECT_EQ(rig.diagram.momentMax(), 3.5f) << "spacings take no part";
    rig.measure(momentFileOf({CurveSpan(1, 1)}, {CurveSpan(1, 2).at(20, "17.25")}));
    EXPECT_EQ(rig.diagram.momentMax(), 17.25f);
    rig.measure(momentFileOf({CurveSpan(1).at(0, "-0.1")}, {CurveSpan(1)}));
    EXPECT_EQ(rig.diagram.momentMax(), 0.1f) << "it is a single, and starts afresh";
}

TEST(MomentDiagram, DrawsTheFirstCurveTheSecondInRedAndTheBaseLine) {
    DiagramRig rig;
    rig.picture.line({1, 2}, {3, 4}, black); // of the diagram before
    EXPECT_EQ(rig.show(momentFileOf(oneSpan(), oneSpan())),
              oneSpanDrawn(black) + oneSpanDrawn(red) + std::vector<Drawn>{baseLine});
}

TEST(MomentDiagram, ALineBesideTheBaseLineForEveryMoment) {
    DiagramRig rig;
    rig.setCantilevers(0, 0); // 700 twips per metre
    Curve second = {CurveSpan(0.5).at(3, "-100").at(4, "50").at(5, "-25")};
    const auto& drawn = rig.show(momentFileOf({CurveSpan(0.5)}, second));
    // Per curve a box and two lines per point; the third point of the second curve:
    const std::size_t third = 41 + 1 + 2 * 2;
    EXPECT_EQ(drawn[third], lineOf({1040, 2000}, {1390, 100}, red));
    EXPECT_EQ(drawn[third + 1], lineOf({1390, 100}, {1390, 2000}, red));
    EXPECT_EQ(drawn[third + 2], lineOf({1390, 100}, {1740, 2950}, red));
    EXPECT_EQ(drawn[third + 4], lineOf({1740, 2950}, {2090, 1525}, red));
    EXPECT_EQ(drawn.size(), 41u * 2 + 1);
}

TEST(MomentDiagram, HoldsTheMomentLevelAcrossASupport) {
    DiagramRig rig(2);
    rig.setCantilevers(0, 0);
    rig.designCase.spv(1) = rig.designCase.spv(2) = 7;
    rig.sketch.computeGeometry(); // 600 twips per metre
    rig.designCase.upl(0) = 0.25f;
    rig.designCase.upl(1) = 0.5f;
    const Curve curve{CurveSpan(0.25).at(20, "-10"), CurveSpan(0.25).at(0, "-20")};
    const auto& drawn = rig.show(momentFileOf(curve, {CurveSpan(0.25), CurveSpan(0.25)}));
    EXPECT_EQ(drawn[0], (Drawn{BoxDrawn{{340, 2000}, {490, 2000}, black, Fill::none}}));
    EXPECT_EQ(drawn[1], lineOf({490, 2000}, {640, 2000}, black));
    EXPECT_EQ(drawn[40], lineOf({3490, 1050}, {3490, 2000}, black));
    // The second span begins where the first ended, with a moment of its own.
    EXPECT_EQ(drawn[41], (Drawn{BoxDrawn{{3490, 100}, {3790, 2000}, black, Fill::none}}));
    EXPECT_EQ(drawn[42], lineOf({3790, 100}, {3940, 2000}, black));
    // Also in the second curve a support is drawn in the foreground colour.
    EXPECT_EQ(drawn[82], (Drawn{BoxDrawn{{340, 2000}, {490, 2000}, black, Fill::none}}));
    EXPECT_EQ(drawn[83], lineOf({490, 2000}, {640, 2000}, red));
}

TEST(MomentDiagram, TheRightRampStartsBehindTheLastSupport) {
    DiagramRig rig;
    rig.designCase.upl(1) = 0.5f;
    const auto& drawn = rig.show(momentFileOf(oneSpan(), oneSpan()));
    const auto ramp = lineOf({7240, 2950}, {8740, 2000}, black);
    EXPECT_EQ(std::count(drawn.begin(), drawn.end(), ramp), 1);
}

TEST(MomentDiagram, ACantileverOfATenthOfAMetreIsNotDrawn) {
    const Bytes file = momentFileOf(oneSpan(), oneSpan());
    constexpr std::size_t withoutCantilevers = 2 * 41 + 1;
    DiagramRig rig;
    rig.setCantilevers(0.1f, 0.1f);
    EXPECT_EQ(rig.show(file).size(), withoutCantilevers);
    rig.setCantilevers(0.11f, 0.1f);
    EXPECT_EQ(rig.show(file).size(), withoutCantilevers + 2 * 2) << "an ordinate and the ramp";
    rig.setCantilevers(0.1f, 0.11f);
    EXPECT_EQ(rig.show(file).size(), withoutCantilevers + 2 * 2);
    rig.setCantilevers(0.11f, 0.11f);
    EXPECT_EQ(rig.show(file).size(), withoutCantilevers + 4 * 2);
}

TEST(MomentDiagram, CantileverOrdinatesFollowTheNeighbouringSpan) {
    DiagramRig rig(2);
    rig.designCase.spv(1) = 4; // an ordinate each 0.2 m
    rig.designCase.spv(2) = 8; // and each 0.4 m
    const Curve curve{CurveSpan(0.25, 10), CurveSpan(0.25, 10)};
    const auto& drawn = rig.show(momentFileOf(curve, curve));
    for (int k = 0; k <= 5; ++k) {
        const double x = 340 + 120 * k;
        const auto& line = std::get<LineDrawn>(drawn.at(static_cast<std::size_t>(k)));
        EXPECT_EQ(line.from, (Point{x, 2000}));
        EXPECT_NEAR(line.to.y, 2000 + 1900 * k / 5.0, 1e-9);
    }
    EXPECT_EQ(drawn[6], lineOf({340, 2000}, {940, 3900}, black));
    const std::size_t right = 7 + 2 * 41;
    EXPECT_EQ(drawn[right], lineOf({8740, 2000}, {8740, 2000}, black));
    EXPECT_NEAR(std::get<LineDrawn>(drawn[right + 2]).to.y, 2000 + 1900 * 0.8, 1e-9);
    EXPECT_EQ(std::get<LineDrawn>(drawn[right + 2]).from, (Point{8260, 2000}));
    EXPECT_EQ(std::get<LineDrawn>(drawn[right + 3]).to, (Point{8740, 2000})) << "the ramp";
}

TEST(MomentDiagram, ReadsItemsBetweenCommasAndLineEnds) {
    const auto drawnWith = [](const Bytes& between) {
        DiagramRig rig;
        return rig.show(momentFileOf(oneSpan(), oneSpan(), between));
    };
    const auto expected = drawnWith("\r\n");
    for (const char* between : {",", "\n", "\r", " ,  ", "  \r\n "})
        EXPECT_EQ(drawnWith(between), expected);
}

TEST(MomentDiagram, DrawsAFileWithAnotherNumberOfSpansAsItIs) {
    DiagramRig two(2);
    const auto& oneOfTwo = two.show(momentFileOf(oneSpan(), oneSpan()));
    EXPECT_EQ(oneOfTwo.back(), baseLine);
    DiagramRig one(1);
    one.designCase.spv(3) = 5.5f; // what an earlier case left
    const Curve three{CurveSpan(0.1, 1), CurveSpan(0.1, 2), CurveSpan(0.1, 4)};
    const auto& threeOfOne = one.show(momentFileOf(three, three));
    EXPECT_EQ(threeOfOne.back(), baseLine);
    // 940 + 60 points of 60 twips
    const auto ramp = std::get<LineDrawn>(threeOfOne[threeOfOne.size() - 2]);
    EXPECT_NEAR(ramp.from.x, 940 + 60 * 60, 0.001);
    EXPECT_EQ(ramp.from.y, 3900);
}

TEST(MomentDiagram, OnPaperTheFirstLeftOrdinatesAreMissing) {
    DiagramRig rig;
    const Bytes file = momentFileOf(oneSpan(), oneSpan());
    const std::vector<Drawn> onScreen = rig.show(file);
    rig.plot(file);
    const std::vector<Drawn> slipped(onScreen.begin(), onScreen.begin() + 2);
    EXPECT_EQ(rig.paper.drawn(), std::vector<Drawn>(onScreen.begin() + 2, onScreen.end()));
    EXPECT_EQ(rig.picture.drawn(), onScreen + slipped);
}

TEST(MomentDiagram, ThePlotIsScaledByTheFileLastMeasured) {
    DiagramRig rig;
    rig.setCantilevers(0, 0);
    rig.measure(momentFileOf({CurveSpan(0.5, 10)}, {CurveSpan(0.5)}));
    rig.plot(momentFileOf({CurveSpan(0.5, 20)}, {CurveSpan(0.5)}));
    EXPECT_EQ(rig.paper.drawn()[0], (Drawn{BoxDrawn{{340, 5800}, {340, 2000}, black, Fill::none}}));
}

} // namespace
} // namespace varno::testing
