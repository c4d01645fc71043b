// What to look at twice in the rows of a line load editor.
#include <gtest/gtest.h>

#include "lineloads/line_load_rig.h"

namespace varno::testing {
namespace {

// A case of three spans of 5 m; the loads stand in spans 1 and 3.
class LineLoadDoubts : public ::testing::TestWithParam<const LineLoadSet*> {
  protected:
    LineLoadDoubts() { rig.open(); }
    std::string name(int load) const {
        return (GetParam()->hasMultipliers ? "Fri linjelast " : "Linjelast ") + std::to_string(load);
    }
    LineLoadDoubt noSuchSpan(int load, int span) const {
        return {spanBox(load),
                name(load) + " står i fack " + std::to_string(span) + ", men plattan har 3 fack."};
    }
    LineLoadDoubt outside(int load, int span, const std::string& distance) const {
        return {distanceBox(load), name(load) + " står utanför fack " + std::to_string(span) +
                                       ": avståndet är " + distance + " m och spännvidden 5 m."};
    }
    std::vector<LineLoadDoubt> doubts() const { return rig.editor.doubts(); }

    const std::vector<LineLoadDoubt> none;
    LineLoadRig rig{*GetParam()};
};

TEST_P(LineLoadDoubts, StandAtTheirBoxes) {
    EXPECT_EQ(doubts(), none);
    rig.span(1) = 4;
    rig.distance(2) = -0.5f;
    EXPECT_EQ(doubts(), (std::vector{noSuchSpan(1, 4), outside(2, 3, "-0,5")}));
}

TEST_P(LineLoadDoubts, AreNoneOfTheOtherEditors) {
    LineLoadRig other(GetParam()->hasMultipliers ? caseLineLoads : freeLineLoads);
    other.span(1) = 4;
    const LineLoadContext context{other.designCase, other.document, other.window, other.sketch,
                                  other.form,       other.view,     other.steps};
    EXPECT_EQ(LineLoadEditor(*GetParam(), context, {}).doubts(), none);
    EXPECT_EQ(other.editor.doubts().size(), 1u);
}

TEST_P(LineLoadDoubts, FollowWhatIsBeingTyped) {
    rig.type(distanceBox(1), "5,01");
    EXPECT_EQ(doubts(), std::vector{outside(1, 1, "5,01")});
    EXPECT_EQ(rig.distance(1), 1.5f) << "it is not stored before the box is left";
    rig.type(distanceBox(1), "5");
    EXPECT_EQ(doubts(), none);
    rig.type(distanceBox(1), "5,004");
    EXPECT_EQ(doubts(), none) << "5.00 will be stored";
    rig.type(spanBox(2), "7");
    EXPECT_EQ(doubts(), std::vector{noSuchSpan(2, 7)});
    rig.type(spanBox(2), "700");
    EXPECT_EQ(doubts(), std::vector{noSuchSpan(2, 15)});
    rig.editor.takeBack(spanBox(2));
    EXPECT_EQ(doubts(), none);
}

TEST_P(LineLoadDoubts, AnEmptiedBoxIsAboutToGetANumber) {
    rig.type(spanBox(2), "");
    EXPECT_EQ(doubts(), none);
    rig.view.focus(loadCountBox);
    EXPECT_EQ(doubts(), std::vector{noSuchSpan(2, 0)});
}

TEST_P(LineLoadDoubts, ADistanceStoredWithMoreDigitsThanItShowsIsNotRounded) {
    rig.distance(1) = 5.004f;
    rig.editor.caseRead();
    rig.type(distanceBox(1), "5,004");
    EXPECT_EQ(doubts(), std::vector{outside(1, 1, "5,004")});
}

TEST_P(LineLoadDoubts, WhatNoNumberTypeHoldsIsToldWhenTheBoxIsLeft) {
    rig.type(distanceBox(1), "1e99");
    EXPECT_EQ(doubts(), none);
    rig.editor.takeBack(distanceBox(1));
    rig.type(spanBox(1), "-99999");
    EXPECT_EQ(doubts(), none);
}

TEST_P(LineLoadDoubts, ARowThatIsNotInUseHasNone) {
    rig.span(2) = 9;
    EXPECT_EQ(doubts().size(), 1u);
    rig.editor.spinDown();
    EXPECT_EQ(doubts(), none);
    rig.editor.spinDown();
    rig.type(spanBox(1), "9");
    EXPECT_EQ(doubts(), none) << "the row stays in sight, showing nothing";
}

INSTANTIATE_TEST_SUITE_P(BothEditors, LineLoadDoubts, ::testing::Values(&caseLineLoads, &freeLineLoads),
                         [](const auto& set) { return set.param->hasMultipliers ? "Free" : "OfTheCase"; });

} // namespace
} // namespace varno::testing
