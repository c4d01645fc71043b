#include "input/form_scroll.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

ScrollAxis axis(int content, int page) {
    ScrollAxis made;
    made.fit(content, page);
    return made;
}

TEST(FormScroll, AFormThatFitsStandsInTheMiddleAndDoesNotMove) {
    ScrollAxis form = axis(500, 700);
    EXPECT_EQ(form.offset(), 100);
    form.moveTo(50);
    EXPECT_EQ(form.position(), 0);
    EXPECT_EQ(form.offset(), 100);
}

TEST(FormScroll, ALargerFormMovesToItsEndAndNoFarther) {
    ScrollAxis form = axis(500, 300);
    EXPECT_EQ(form.offset(), 0);
    form.moveTo(150);
    EXPECT_EQ(form.offset(), -150);
    form.moveTo(1000);
    EXPECT_EQ(form.offset(), -200);
    form.moveTo(-3);
    EXPECT_EQ(form.offset(), 0);
}

TEST(FormScroll, MoreRoomTakesBackWhatWasScrolled) {
    ScrollAxis form = axis(500, 300);
    form.moveTo(200);
    form.fit(500, 400);
    EXPECT_EQ(form.offset(), -100);
    form.fit(500, 520);
    EXPECT_EQ(form.offset(), 10);
}

TEST(FormScroll, WhatIsSeenDoesNotMoveTheForm) {
    ScrollAxis form = axis(500, 300);
    form.moveTo(100);
    form.reveal(130, 150, 20);
    EXPECT_EQ(form.position(), 100);
}

TEST(FormScroll, AControlBelowOrAboveIsShownWithSomeRoomAroundIt) {
    ScrollAxis form = axis(500, 300);
    form.reveal(380, 400, 20);
    EXPECT_EQ(form.position(), 120);
    form.reveal(60, 80, 20);
    EXPECT_EQ(form.position(), 40);
    form.reveal(5, 25, 20);
    EXPECT_EQ(form.position(), 0);
    form.reveal(480, 500, 20);
    EXPECT_EQ(form.position(), 200);
}

TEST(FormScroll, WhatIsLargerThanTheRoomIsShownFromItsBeginning) {
    ScrollAxis form = axis(500, 100);
    form.reveal(200, 400, 0);
    EXPECT_EQ(form.position(), 200);
}

TEST(FormScroll, WithoutRoomNothingGoesWrong) {
    ScrollAxis form = axis(500, -4);
    form.reveal(200, 220, 20);
    EXPECT_EQ(form.page(), 0);
    EXPECT_EQ(form.position(), 180);
}

TEST(FormScroll, BarsComeForWhatDoesNotFit) {
    EXPECT_EQ(scrollBarsFor({900, 500}, {900, 500}, 17), (ScrollBars{false, false}));
    EXPECT_EQ(scrollBarsFor({900, 500}, {917, 499}, 17), (ScrollBars{true, false}));
    EXPECT_EQ(scrollBarsFor({900, 500}, {899, 517}, 17), (ScrollBars{false, true}));
}

TEST(FormScroll, OneBarCanCallForTheOther) {
    EXPECT_EQ(scrollBarsFor({900, 500}, {910, 499}, 17), (ScrollBars{true, true}));
    EXPECT_EQ(scrollBarsFor({900, 500}, {899, 510}, 17), (ScrollBars{true, true}));
}

TEST(FormScroll, TheWheelLosesNothingOfATurnInSmallParts) {
    WheelSteps wheel;
    int sum = 0;
    for (int part = 0; part < 24; ++part)
        sum += wheel.pixels(5, 37);
    EXPECT_EQ(sum, 37);
}

TEST(FormScroll, ATurnTheOtherWayBeginsAfresh) {
    WheelSteps wheel;
    EXPECT_EQ(wheel.pixels(119, 1), 0);
    EXPECT_EQ(wheel.pixels(-120, 1), -1);
    EXPECT_EQ(wheel.pixels(-120, 36), -36);
}

} // namespace
} // namespace varno
