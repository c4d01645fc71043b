#include <gtest/gtest.h>

#include "lineloads/line_load_rig.h"

namespace varno::testing {
namespace {

class Count : public ::testing::TestWithParam<const LineLoadSet*> {
  protected:
    void SetUp() override { rig.open(); }
    void openWith(std::int16_t loads) {
        rig.editor.layout();
        rig.count() = loads;
        rig.open();
    }

    LineLoadRig rig{*GetParam()};
};

INSTANTIATE_TEST_SUITE_P(LineLoads, Count, ::testing::Values(&caseLineLoads, &freeLineLoads),
                         [](const auto& tested) {
                             return std::string(tested.param == &caseLineLoads ? "Case" : "Free");
                         });

TEST_P(Count, UpShowsTheNextRowWithItsOldValues) {
    rig.editor.spinUp();
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "3");
    EXPECT_EQ(rig.count(), 3);
    EXPECT_EQ(rig.view.rows(), "1 2 3");
    EXPECT_EQ(rig.shownRow(3), "2/0.50/-4.00");
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.sketch.asked, Texts{"lineLoads"});
}

TEST_P(Count, DownHidesTheLastRowAndKeepsItsValues) {
    rig.editor.spinDown();
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "1");
    EXPECT_EQ(rig.count(), 1);
    EXPECT_EQ(rig.view.rows(), "1");
    EXPECT_EQ(rig.load(2), 1234.0f);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.sketch.asked, Texts{"lineLoads"});
}

TEST_P(Count, DownToNoneLeavesTheFirstRowShowingZeros) {
    rig.editor.spinDown();
    rig.editor.spinDown();
    EXPECT_EQ(rig.count(), 0);
    EXPECT_EQ(rig.view.rows(), "1");
    EXPECT_EQ(rig.shownRow(1), "0/0.00/0.00");
    EXPECT_EQ(rig.span(1), 1);
    EXPECT_EQ(rig.load(1), 10.0f);
    rig.visit(loadBox(1));
    EXPECT_EQ(rig.load(1), 10.0f) << "zeros that nobody typed";

    rig.editor.layout();
    rig.editor.opened();
    EXPECT_EQ(rig.view.rows(), "");
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "0");
}

TEST_P(Count, UpFromNoneBringsTheFirstRowBack) {
    rig.editor.spinDown();
    rig.editor.spinDown();
    rig.editor.spinUp();
    EXPECT_EQ(rig.view.rows(), "1");
    EXPECT_EQ(rig.shownRow(1), "1/1.50/10.00");
}

TEST_P(Count, DownAndUpAgainShowsTheOldValues) {
    openWith(3);
    rig.editor.spinDown();
    rig.editor.spinDown();
    EXPECT_EQ(rig.view.rows(), "1");
    rig.editor.spinUp();
    rig.editor.spinUp();
    EXPECT_EQ(rig.view.rows(), "1 2 3");
    EXPECT_EQ(rig.shownRow(2), "3/2.25/1234.00");
    EXPECT_EQ(rig.shownRow(3), "2/0.50/-4.00");
}

TEST_P(Count, NothingHappensAtTheBounds) {
    openWith(5);
    rig.editor.spinUp();
    EXPECT_EQ(rig.count(), 5);
    EXPECT_EQ(rig.view.rows(), "1 2 3 4 5");
    openWith(0);
    rig.editor.spinDown();
    EXPECT_EQ(rig.count(), 0);
    EXPECT_EQ(rig.view.rows(), "");
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(Count, WhatIsBeingTypedIsStoredBeforeItsRowGoes) {
    rig.type(loadBox(2), "7");
    rig.editor.spinDown();
    EXPECT_EQ(rig.load(2), 7.0f);
    EXPECT_EQ(rig.view.focused, loadCountBox);
    EXPECT_EQ(rig.view.rows(), "1");
}

TEST_P(Count, AStepGoesFromWhatIsShownInTheBox) {
    rig.view.type(loadCountBox, "4");
    rig.editor.spinUp();
    EXPECT_EQ(rig.count(), 5);
    EXPECT_EQ(rig.view.rows(), "1 2 3 4 5");
    EXPECT_EQ(rig.shownRow(4), "9/-1.00/0.25");
    rig.view.type(loadCountBox, "2,4");
    rig.editor.spinDown();
    EXPECT_EQ(rig.text(LineLoadBox::nllast), "1");
    EXPECT_EQ(rig.view.rows(), "1");
    rig.view.type(loadCountBox, "many");
    rig.editor.spinUp();
    EXPECT_EQ(rig.count(), 1);
}

TEST_P(Count, AStepBeyondTheArraysIsError9AndChangesNothing) {
    const std::pair<const char*, bool> steps[] = {{"4.6", true}, {"7", false}, {"0.3", false}, {"-7", true}};
    for (const auto& [typed, up] : steps) {
        rig.view.type(loadCountBox, typed);
        const int error = errorOf([&] { up ? rig.editor.spinUp() : rig.editor.spinDown(); });
        EXPECT_EQ(error, errSubscriptOutOfRange) << typed;
        EXPECT_EQ(rig.text(LineLoadBox::nllast), "2");
        EXPECT_EQ(rig.view.returnedTo, loadCountBox);
    }
    for (const char* typed : {"1e9", "1e999"}) {
        rig.view.type(loadCountBox, typed);
        EXPECT_EQ(errorOf([&] { rig.editor.spinDown(); }), errOverflow) << typed;
    }
    EXPECT_EQ(rig.count(), 2);
    EXPECT_EQ(rig.view.rows(), "1 2");
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
    EXPECT_EQ(rig.refreshes(), 0);
}

TEST_P(Count, ANegativeCountOfAFileCanBeCountedUp) {
    openWith(-2);
    rig.editor.spinDown();
    EXPECT_EQ(rig.count(), -2);
    rig.editor.spinUp();
    EXPECT_EQ(rig.count(), -1);
    rig.editor.spinUp();
    EXPECT_EQ(rig.count(), 0);
    EXPECT_EQ(rig.view.rows(), "");
    rig.editor.spinUp();
    EXPECT_EQ(rig.view.rows(), "1");
    EXPECT_EQ(rig.shownRow(1), "1/1.50/10.00");
}

TEST_P(Count, IsStoredAndMarkedBeforeTheSketchFails) {
    rig.designCase.nfack = 16;
    EXPECT_EQ(errorOf([&] { rig.editor.spinUp(); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.count(), 3);
    EXPECT_EQ(rig.view.rows(), "1 2 3");
    EXPECT_TRUE(rig.document.dataChanged);
}

} // namespace
} // namespace varno::testing
