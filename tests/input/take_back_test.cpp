// Esc in a box: what was typed since it has the focus is taken back.
#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;

const Control span1{Field::spv, 1};
const Control title{Field::rubrik};
const Control count{Field::nfack};

TEST(TakeBack, TheTextIsAsTheBoxTookTheFocus) {
    InputRig rig;
    rig.form.focus(span1);
    EXPECT_FALSE(rig.input.isTyped(span1));
    rig.form.type(span1, "7,5");
    EXPECT_TRUE(rig.input.isTyped(span1));
    rig.input.takeBack(span1);
    EXPECT_EQ(rig.text(span1), "5.00");
    EXPECT_FALSE(rig.input.isTyped(span1));
    rig.form.focus(title);
    EXPECT_EQ(rig.designCase.spv(1), 5.0f);
    EXPECT_TRUE(rig.sketch.asked.empty());
}

TEST(TakeBack, ANumberWithMoreDigitsThanShownKeepsThem) {
    InputRig rig;
    rig.designCase.spv(1) = 4.005f;
    rig.designCase.konsh = 2.345f;
    rig.show();
    for (const Control box : {span1, Control{Field::konsh}}) {
        rig.type(box, "9");
        rig.input.takeBack(box);
        rig.form.focus(title);
    }
    EXPECT_EQ(rig.designCase.spv(1), 4.005f);
    EXPECT_EQ(rig.designCase.konsh, 2.345f);
}

TEST(TakeBack, WhatWasStoredBeforeStays) {
    InputRig rig;
    rig.edit(span1, "6");
    rig.type(span1, "7");
    rig.input.takeBack(span1);
    EXPECT_EQ(rig.text(span1), "6.00");
    rig.form.focus(title);
    EXPECT_EQ(rig.designCase.spv(1), 6.0f);
}

TEST(TakeBack, ARefusedNumberHasNothingLeftToTakeBack) {
    InputRig rig;
    const Control cover{Field::ktack};
    rig.type(cover, "1e9");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus(cover); }), errOverflow);
    EXPECT_FALSE(rig.input.isTyped(cover));
}

TEST(TakeBack, TheSpanCountKeepsWhatWasTypedEarlier) {
    InputRig rig;
    rig.edit(count, "7");
    rig.type(count, "8");
    rig.input.takeBack(count);
    EXPECT_EQ(rig.text(count), "7");
    rig.input.spinUp();
    EXPECT_EQ(rig.designCase.nfack, 8) << "the step counts from what was typed before";
}

TEST(TakeBack, TheTitleOfAnotherCaseIsNotThatOfTheLast) {
    InputRig rig;
    rig.form.focus(title);
    rig.form.type(title, "Hus 1");
    rig.filler.showCase("Hus 2");
    EXPECT_FALSE(rig.input.isTyped(title)) << "the focus stayed in the title";
    rig.form.type(title, "Hus 2, plan 1");
    rig.input.takeBack(title);
    EXPECT_EQ(rig.text(title), "Hus 2");
    EXPECT_EQ(rig.form.hint, "") << "the comma has gone with it";
}

} // namespace
} // namespace varno
