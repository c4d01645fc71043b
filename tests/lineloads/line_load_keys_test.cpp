// The arrow keys in a line load editor.
#include <gtest/gtest.h>

#include "lineloads/line_load_rig.h"

namespace varno {
namespace {

using enum LineLoadBox;
using varno::testing::LineLoadRig;

std::optional<LineLoadControl> reached(LineLoadRig& rig, LineLoadControl from, int rows) {
    rig.view.focus(from);
    rig.view.entered.reset();
    rig.editor.arrow(from, rows);
    return rig.view.entered;
}

TEST(LineLoadKeys, ArrowsStepTheCount) {
    LineLoadRig rig;
    rig.open();
    EXPECT_EQ(reached(rig, {nllast}, -1), LineLoadControl{nllast});
    EXPECT_EQ(rig.count(), 3);
    EXPECT_EQ(rig.view.rows(), "1 2 3");
    EXPECT_EQ(reached(rig, {nllast}, 1), LineLoadControl{nllast});
    EXPECT_EQ(rig.count(), 2);
}

TEST(LineLoadKeys, ArrowsStayInTheColumnOfTheRowsThatAreSeen) {
    LineLoadRig rig;
    rig.open();
    for (const LineLoadBox column : {llfnr, avst, lllast}) {
        EXPECT_EQ(reached(rig, {column, 1}, 1), (LineLoadControl{column, 2}));
        EXPECT_EQ(reached(rig, {column, 2}, -1), (LineLoadControl{column, 1}));
        EXPECT_EQ(reached(rig, {column, 1}, -1), std::nullopt);
        EXPECT_EQ(reached(rig, {column, 2}, 1), std::nullopt);
    }
}

TEST(LineLoadKeys, ArrowsGoThroughTheMultipliers) {
    LineLoadRig rig(freeLineLoads);
    rig.open();
    EXPECT_EQ(reached(rig, {multiplier, 1}, -1), std::nullopt);
    EXPECT_EQ(reached(rig, {multiplier, 3}, 1), (LineLoadControl{multiplier, 4}));
    EXPECT_EQ(reached(rig, {multiplier, 4}, 1), std::nullopt);
}

TEST(LineLoadKeys, AnArrowStoresWhatWasTyped) {
    LineLoadRig rig;
    rig.open();
    rig.type({avst, 1}, "0,5");
    rig.editor.arrow({avst, 1}, 1);
    EXPECT_EQ(rig.distance(1), 0.5f);
}

} // namespace
} // namespace varno
