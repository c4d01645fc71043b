// Steps back and forward through the edits of line loads.
#include <gtest/gtest.h>

#include "lineloads/line_load_rig.h"

namespace varno {
namespace {

using varno::testing::LineLoadRig;

TEST(LineLoadSteps, ARowGoesBackAndIsShown) {
    LineLoadRig rig;
    rig.open();
    rig.steps.start();
    rig.edit({LineLoadBox::lllast, 1}, "77");
    rig.edit({LineLoadBox::llfnr, 1}, "2");
    rig.document.dataChanged = false;
    rig.steps.back();
    EXPECT_EQ(rig.span(1), 1);
    EXPECT_EQ(rig.load(1), 77.0f);
    EXPECT_TRUE(rig.document.dataChanged) << "a step marks, though the edit of a row does not";
    rig.steps.back();
    EXPECT_EQ(rig.load(1), 10.0f);
    EXPECT_EQ(rig.beside.shown, 2);
    rig.editor.caseRead();
    EXPECT_EQ(rig.shownRow(1), "1/1.50/10.00");
}

TEST(LineLoadSteps, TheCountIsAStepOfItsOwn) {
    LineLoadRig rig(freeLineLoads);
    rig.open();
    rig.steps.start();
    rig.type({LineLoadBox::avst, 2}, "3");
    rig.editor.spinUp();
    rig.steps.back();
    EXPECT_EQ(rig.count(), 2);
    EXPECT_EQ(rig.distance(2), 3.0f);
    rig.steps.back();
    EXPECT_EQ(rig.distance(2), 2.25f);
    rig.editor.caseRead();
    EXPECT_EQ(rig.view.rows(), "1 2");
}

TEST(LineLoadSteps, AMultiplierIsNoEdit) {
    LineLoadRig rig(freeLineLoads);
    rig.open();
    rig.steps.start();
    rig.edit({LineLoadBox::multiplier, 1}, "1,5");
    rig.steps.back();
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_EQ(rig.text(LineLoadBox::multiplier, 1), "1.50");
}

} // namespace
} // namespace varno
