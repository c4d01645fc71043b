#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <random>

#include "diagram/moment_curves.h"

// Files and cases that cannot be drawn, and those that nearly cannot.
namespace varno::testing {
namespace {

Curve flat(std::size_t spans, double moment) {
    return Curve(spans, CurveSpan(0.5, moment));
}

Bytes sound() {
    return momentFileOf(flat(1, 10), flat(1, -10));
}

TEST(DamagedMoments, WithoutAnyMomentThereIsNoScale) {
    DiagramRig rig;
    const Bytes zeros = momentFileOf(flat(1, 0), flat(1, 0));
    rig.show(sound());
    EXPECT_EQ(errorOf([&] { rig.show(zeros); }), errDivisionByZero);
    EXPECT_TRUE(rig.picture.drawn().empty()) << "the old picture is gone";
    EXPECT_EQ(errorOf([&] { rig.plot(zeros); }), errDivisionByZero);
    EXPECT_EQ(rig.timesAsked, 0);
    for (const char* none : {"0", "-3"})
        EXPECT_EQ(errorOf([&] { rig.show(none); }), errDivisionByZero) << none;
}

TEST(DamagedMoments, AFileThatDidNotOpenIsError52) {
    DiagramRig rig;
    File none;
    EXPECT_EQ(errorOf([&] { rig.diagram.measure(none); }), errBadFileNameOrNumber);
    EXPECT_EQ(errorOf([&] { rig.diagram.draw(none, rig.picture); }), errBadFileNameOrNumber);
    const auto paper = [&]() -> Canvas& { return rig.paper; };
    EXPECT_EQ(errorOf([&] { rig.diagram.plot(none, paper, rig.picture); }), errBadFileNameOrNumber);
}

TEST(DamagedMoments, AShortFileStopsAtItsEnd) {
    DiagramRig rig;
    const Bytes whole = sound();
    const std::size_t lastItem = whole.rfind("-10");
    for (std::size_t length = 0; length <= lastItem; ++length) {
        EXPECT_EQ(errorOf([&] { rig.measure(whole.substr(0, length)); }), errInputPastEnd) << length;
    }
    rig.measure(whole);
    EXPECT_EQ(errorOf([&] { rig.draw(whole.substr(0, whole.size() / 2)); }), errInputPastEnd);
    EXPECT_FALSE(rig.picture.drawn().empty()) << "what was drawn stays";
    EXPECT_EQ(errorOf([&] { rig.plot(""); }), errInputPastEnd);
    EXPECT_EQ(rig.timesAsked, 0);
}

TEST(DamagedMoments, MoreSpansThanACaseHasRoomForAreError9) {
    DiagramRig rig;
    EXPECT_EQ(errorOf([&] { rig.show(momentFileOf(flat(16, 1), flat(16, 1))); }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { rig.show("99999"); }), errOverflow);
    EXPECT_EQ(errorOf([&] { rig.show("1e999"); }), errOverflow);
    EXPECT_EQ(errorOf([&] { rig.show(momentFileOf(flat(15, 1), flat(15, 1))); }), 0);
    // Per curve the left ramp with two ordinates, the spans, and the right ramp of a span without length.
    EXPECT_EQ(rig.picture.drawn().size(), 2u * (3 + 15 * 41 + 2) + 1);
}

TEST(DamagedMoments, ANumberBeyondTheSinglesIsError6) {
    for (const char* number : {"1e39", "-1e999"}) {
        DiagramRig rig;
        EXPECT_EQ(errorOf([&] { rig.show(momentFileOf(flat(1, 1), {CurveSpan(1).at(9, number)})); }),
                  errOverflow);
        CurveSpan spacing(1, 1);
        spacing.dx = number;
        EXPECT_EQ(errorOf([&] { rig.show(momentFileOf({spacing}, flat(1, 1))); }), errOverflow);
    }
}

TEST(DamagedMoments, WhatIsNoNumberIsZero) {
    DiagramRig rig;
    rig.measure(momentFileOf({CurveSpan(1).at(1, "abc").at(2, "").at(3, "7 kNm")}, flat(1, 0)));
    EXPECT_EQ(rig.diagram.momentMax(), 7.0f);
}

TEST(DamagedMoments, ACaseWhoseStepIsNothingIsDrawn) {
    for (const float length : {0.0f, -4.0f}) {
        DiagramRig rig;
        rig.show(sound());
        rig.designCase.spv(1) = length;
        EXPECT_EQ(rig.show(sound()).size(), 2u * (2 + 41 + 2) + 1) << "one ordinate each";
    }
}

TEST(DamagedMoments, OrdinatesCloserThanCanBeSeenDoNotHoldUpTheProgram) {
    for (const float length : {1e-3f, 1e-7f, 1e-30f, 1e-45f}) {
        DiagramRig rig;
        rig.designCase.spv(1) = length;
        rig.setCantilevers(1000, 1000);
        const std::size_t drawn = rig.show(sound()).size();
        EXPECT_LT(drawn, 4 * 4300u) << length;
        if (length > 1e-10f) {
            EXPECT_GT(drawn, 4 * 4100u) << "it still is a filled ramp";
        }
    }
}

TEST(DamagedMoments, CantileversBeyondAnyPaperDoNotHoldUpTheProgram) {
    DiagramRig rig;
    rig.designCase.spv(1) = 0.01f;
    rig.designCase.konsh = -1e6f;
    rig.designCase.konsv = 1e6f + 1; // the slab is 1 m long in all
    rig.sketch.computeGeometry();
    EXPECT_LT(rig.show(sound()).size(), 2 * 8000u);
}

TEST(DamagedMoments, EverythingDrawnIsFinite) {
    std::mt19937 random(606);
    const char* numbers[] = {"0", "-1", "3.4e38", "-3.4e38", "1e-45", "12.5", "x", "1e5"};
    const float lengths[] = {0, 0.1f, 0.11f, 5, -5, 1e-30f, 1e30f, 3e38f};
    int drawnThrough = 0;
    for (int round = 0; round < 300; ++round) {
        DiagramRig rig;
        const auto length = [&] { return lengths[random() % std::size(lengths)]; };
        rig.designCase.spv(1) = length();
        rig.designCase.upl(0) = length();
        rig.designCase.upl(1) = length();
        rig.designCase.konsv = length();
        rig.designCase.konsh = length();
        Curve curve{CurveSpan(1)};
        curve[0].dx = numbers[random() % std::size(numbers)];
        for (std::string& moment : curve[0].moments)
            moment = numbers[random() % std::size(numbers)];
        if (errorOf([&] { rig.sketch.computeGeometry(); }) != 0) continue;
        ASSERT_EQ(errorOf([&] { rig.show(momentFileOf(curve, curve)); }), 0);
        ++drawnThrough;
        for (const Drawn& drawn : rig.picture.drawn()) {
            const auto* line = std::get_if<LineDrawn>(&drawn);
            if (line == nullptr) continue;
            for (const double place : {line->from.x, line->from.y, line->to.x, line->to.y})
                ASSERT_TRUE(std::isfinite(place)) << "round " << round;
        }
    }
    EXPECT_GT(drawnThrough, 100);
}

} // namespace
} // namespace varno::testing
