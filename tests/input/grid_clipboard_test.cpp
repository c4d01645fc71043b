// Rows of numbers between the grid and a spreadsheet.
#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

TEST(ClipboardRows, TabsEndCellsAndLineEndsRows) {
    EXPECT_EQ(clipboardRows("5,5\t6\t7.25\r\n"), (ClipboardRows{{"5,5", "6", "7.25"}}));
    EXPECT_EQ(clipboardRows("1\t2\n3\t4"), (ClipboardRows{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(clipboardRows("1\r\n2\r\n3\r\n"), (ClipboardRows{{"1", "2", "3"}})) << "a column";
    EXPECT_EQ(clipboardRows("5,5\r\n"), (ClipboardRows{{"5,5"}}));
    EXPECT_EQ(clipboardRows(""), (ClipboardRows{{""}}));
}

TEST(GridClipboard, ARowFillsTheCellsFromThereOn) {
    InputRig rig(4);
    rig.form.focus({Field::spv, 2});
    EXPECT_TRUE(rig.input.pasted({Field::spv, 2}, "6,5\t7.255\r\n"));
    EXPECT_EQ(rig.texts(Field::spv, 1, 4), (Texts{"5.00", "6.50", "7.26", "7.26"}))
        << "the last one is carried forward, as a typed one";
    EXPECT_EQ(rig.designCase.spv(3), 7.26f);
    EXPECT_EQ(rig.designCase.spv(4), 7.26f);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.sketch.asked, (Texts{"full"})) << "drawn once";
    EXPECT_EQ(rig.form.allSelected(), (Control{Field::spv, 2}));
    EXPECT_EQ(rig.form.hint, "");
    // Leaving the cell afterwards changes nothing.
    const DesignCase pasted = rig.designCase;
    rig.form.focus({Field::rubrik});
    EXPECT_EQ(rig.designCase, pasted);
}

TEST(GridClipboard, AColumnFillsARowToo) {
    InputRig rig;
    EXPECT_TRUE(rig.input.pasted({Field::plast, 1}, "1\n2\n3\n"));
    EXPECT_EQ(rig.texts(Field::plast, 1, 3), (Texts{"1.00", "2.00", "3.00"}));
}

TEST(GridClipboard, EachNumberGoesByTheRuleOfItsRow) {
    InputRig rig(4);
    EXPECT_TRUE(rig.input.pasted({Field::ptjl, 1}, "0,25\tabc\t 1 200,5 "));
    EXPECT_EQ(rig.texts(Field::ptjl, 1, 4), (Texts{"0.250", "0.000", "1200.500", "1200.500"}));
    rig.show();
    EXPECT_TRUE(rig.input.pasted({Field::upl, 2}, "0,2\t0,3\t0,4"));
    EXPECT_EQ(rig.texts(Field::upl, 0, 4), (Texts{"0.000", "0.100", "0.200", "0.300", "0.000"}))
        << "the end support takes nothing";
    EXPECT_EQ(rig.designCase.upl(4), 0.0f);
    EXPECT_EQ(rig.form.hint, leftOutHint);
    EXPECT_TRUE(rig.sketch.asked.empty()) << "supports are not drawn anew";
}

TEST(GridClipboard, AnEmptyCellLeavesTheGridAlone) {
    InputRig rig;
    rig.edit({Field::plast, 3}, "9");
    EXPECT_TRUE(rig.input.pasted({Field::flast, 1}, "\t\t4"));
    EXPECT_EQ(rig.designCase.flast(1), 2.0f);
    EXPECT_EQ(rig.designCase.flast(3), 4.0f);
}

TEST(GridClipboard, RowsGoIntoTheRowsBelow) {
    InputRig rig;
    EXPECT_TRUE(rig.input.pasted({Field::spv, 1}, "4\t5\t6\r\n0,2\t0,25\t0,3\r\n1\t2\t3\r\n"));
    EXPECT_EQ(rig.texts(Field::spv, 1, 3), (Texts{"4.00", "5.00", "6.00"}));
    EXPECT_EQ(rig.texts(Field::ptjl, 1, 3), (Texts{"0.200", "0.250", "0.300"}));
    EXPECT_EQ(rig.texts(Field::plast, 1, 3), (Texts{"1.00", "2.00", "3.00"}));
    EXPECT_EQ(rig.sketch.asked, (Texts{"full"}));
}

TEST(GridClipboard, WhatFindsNoCellIsToldAndDropped) {
    InputRig rig;
    EXPECT_TRUE(rig.input.pasted({Field::spv, 3}, "4\t5"));
    EXPECT_EQ(rig.designCase.spv(3), 4.0f);
    EXPECT_EQ(rig.form.hint, leftOutHint);
    rig.form.focus({Field::spv, 3});
    rig.form.focus({Field::rubrik});
    EXPECT_EQ(rig.form.hint, "") << "it goes with the focus";

    rig.choose(Field::lokt, 3); // fixes the variable loads
    const float fixed = rig.designCase.flast(1);
    EXPECT_TRUE(rig.input.pasted({Field::plast, 1}, "1\t1\n7\t7"));
    EXPECT_EQ(rig.designCase.flast(1), fixed);
    EXPECT_EQ(rig.form.hint, leftOutHint);
}

TEST(GridClipboard, OneNumberIsForTheBoxAndSoIsAllOutsideTheGrid) {
    InputRig rig;
    EXPECT_FALSE(rig.input.pasted({Field::spv, 1}, "7,5\r\n"));
    EXPECT_FALSE(rig.input.pasted({Field::konsv}, "1\t2"));
    EXPECT_FALSE(rig.input.pasted({Field::rubrik}, "1\t2"));
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_FALSE(rig.input.copied({Field::konsv}).has_value());
}

TEST(GridClipboard, ARefusedNumberStopsThereAndIsNamed) {
    InputRig rig;
    EXPECT_EQ(errorOf([&] { rig.input.pasted({Field::spv, 1}, "4\t1e99\t6"); }), errOverflow);
    EXPECT_EQ(rig.texts(Field::spv, 1, 3), (Texts{"4.00", "4.00", "4.00"}));
    EXPECT_EQ(rig.designCase.spv(3), 4.0f);
    EXPECT_EQ(rig.form.returnedTo, (Control{Field::spv, 2}));
    EXPECT_EQ(rig.sketch.asked, (Texts{"full"}));
}

TEST(GridClipboard, ANumberThatCannotBeDrawnDoesNotStopTheRow) {
    InputRig rig;
    EXPECT_EQ(errorOf([&] { rig.input.pasted({Field::spv, 1}, "0\t5\t6"); }), errOverflow)
        << "a block without width";
    EXPECT_EQ(rig.texts(Field::spv, 1, 3), (Texts{"0.00", "5.00", "6.00"}));
}

TEST(GridClipboard, APastedRowIsOneEdit) {
    InputRig rig;
    const DesignCase before = rig.designCase;
    rig.input.pasted({Field::spv, 1}, "4\t5\t6");
    rig.steps.back();
    EXPECT_EQ(rig.designCase, before);
    rig.steps.forward();
    EXPECT_EQ(rig.texts(Field::spv, 1, 3), (Texts{"4.00", "5.00", "6.00"}));
}

TEST(GridClipboard, ACopiedRowIsTheSameWhenItIsPasted) {
    InputRig rig(4);
    rig.input.pasted({Field::spv, 1}, "4\t5\t6\t7");
    rig.input.pasted({Field::upl, 1}, "0,1\t0,2\t0,3");
    EXPECT_EQ(rig.input.copied({Field::spv, 1}), "4.00\t5.00\t6.00\t7.00");
    EXPECT_EQ(rig.input.copied({Field::spv, 3}), "6.00\t7.00");
    EXPECT_EQ(rig.input.copied({Field::spv, 4}), "7.00");
    EXPECT_EQ(rig.input.copied({Field::upl, 1}), "0.100\t0.200\t0.300") << "without the end supports";
    const DesignCase before = rig.designCase;
    for (const Control cell : {Control{Field::spv, 2}, Control{Field::upl, 1}})
        EXPECT_TRUE(rig.input.pasted(cell, *rig.input.copied(cell)));
    EXPECT_EQ(rig.designCase, before);
}

} // namespace
} // namespace varno
