#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

constexpr Control countBox{Field::nfack};

void expectCells(const InputRig& rig, int spans) {
    EXPECT_EQ(rig.designCase.nfack, spans);
    EXPECT_EQ(rig.text(countBox), std::to_string(spans));
    for (int i = 1; i <= 10; ++i) {
        for (const Field row : {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl}) {
            EXPECT_EQ(rig.form.state({row, i}).visible, i <= spans) << i;
        }
        if (i <= spans) {
            EXPECT_EQ(rig.form.state({Field::upl, i}).enabled, i < spans) << i;
        }
    }
    EXPECT_FALSE(rig.form.state({Field::upl, 0}).enabled);
    EXPECT_EQ(rig.designCase.upl(spans), 0.0f);
    EXPECT_EQ(rig.text({Field::upl, spans}), "0.000");
}

TEST(SpanCount, UpAddsASpanFromTheRecord) {
    InputRig rig(3);
    rig.designCase.spv(4) = 7;
    rig.form.focus({Field::spv, 2});
    rig.input.spinUp();
    expectCells(rig, 4);
    EXPECT_EQ(rig.texts(Field::spv, 1, 4), (Texts{"5.00", "5.00", "5.00", "7.00"}));
    EXPECT_EQ(rig.text({Field::ptjl, 4}), "0.170");
    EXPECT_EQ(rig.text({Field::flast, 4}), "2.00");
    EXPECT_EQ(rig.text({Field::plast, 4}), "0.00");
    // The former end support is an inner one now, without width until the user types one.
    EXPECT_EQ(rig.texts(Field::upl, 2, 4), (Texts{"0.100", "0.000", "0.000"}));
    EXPECT_TRUE(rig.form.state({Field::upl, 3}).enabled);
    for (int i = 4; i <= 10; ++i)
        EXPECT_EQ(rig.designCase.upl(i), 0.0f);
    EXPECT_EQ(rig.sketch.asked, Texts{"full"});
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.form.focused(), (Control{Field::rubrik}));
}

TEST(SpanCount, DownHidesTheLastSpan) {
    InputRig rig(3);
    rig.input.spinDown();
    expectCells(rig, 2);
    EXPECT_EQ(rig.designCase.spv(3), 5.0f);
    EXPECT_EQ(rig.sketch.asked, Texts{"full"});
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_EQ(rig.form.focused(), (Control{Field::rubrik}));
}

TEST(SpanCount, BeyondTheLimitsNothingHappens) {
    InputRig most(10);
    const DesignCase ten = most.designCase;
    most.form.focus({Field::konsv});
    most.input.spinUp();
    EXPECT_EQ(most.designCase, ten);
    EXPECT_FALSE(most.document.dataChanged);
    EXPECT_TRUE(most.window.diagram);
    EXPECT_EQ(most.form.focused(), (Control{Field::konsv}));

    InputRig least(1);
    const DesignCase one = least.designCase;
    least.input.spinDown();
    EXPECT_EQ(least.designCase, one);
    EXPECT_FALSE(least.document.dataChanged);
    EXPECT_TRUE(least.window.diagram);
    EXPECT_TRUE(least.sketch.asked.empty());
}

TEST(SpanCount, SpansThatComeBackKeepTheirValuesButNotTheirSupports) {
    InputRig rig(4);
    rig.edit({Field::spv, 3}, "6");
    rig.edit({Field::spv, 4}, "7");
    rig.edit({Field::ptjl, 4}, "0.3");
    rig.edit({Field::plast, 4}, "1.5");
    rig.edit({Field::flast, 4}, "2.5");
    rig.input.spinDown();
    rig.input.spinDown();
    expectCells(rig, 2);
    rig.input.spinUp();
    rig.input.spinUp();
    expectCells(rig, 4);
    EXPECT_EQ(rig.texts(Field::spv, 1, 4), (Texts{"5.00", "5.00", "6.00", "7.00"}));
    EXPECT_EQ(rig.text({Field::ptjl, 4}), "0.300");
    EXPECT_EQ(rig.text({Field::plast, 4}), "1.50");
    EXPECT_EQ(rig.text({Field::flast, 4}), "2.50");
    EXPECT_EQ(rig.texts(Field::upl, 1, 4), (Texts{"0.100", "0.000", "0.000", "0.000"}));
    for (int i = 2; i <= 4; ++i)
        EXPECT_EQ(rig.designCase.upl(i), 0.0f);
    EXPECT_TRUE(rig.form.state({Field::upl, 2}).enabled);
    EXPECT_TRUE(rig.form.state({Field::upl, 3}).enabled);
}

TEST(SpanCount, TheFieldBeingTypedInIsStoredUnderTheOldCount) {
    InputRig rig(2);
    rig.type({Field::spv, 1}, "6,5");
    rig.input.spinUp();
    EXPECT_EQ(rig.designCase.spv(2), 6.5f);
    EXPECT_EQ(rig.designCase.spv(3), 5.5f);
    expectCells(rig, 3);
}

TEST(SpanCount, ATypedCountMeansNothingUntilTheNextStep) {
    InputRig rig(3);
    rig.edit(countBox, "7");
    EXPECT_EQ(rig.designCase.nfack, 3);
    EXPECT_FALSE(rig.document.dataChanged);
    rig.input.spinUp();
    expectCells(rig, 8);
    EXPECT_EQ(rig.texts(Field::spv, 3, 8), (Texts{"5.00", "5.50", "5.50", "5.50", "5.50", "5.50"}));
}

TEST(SpanCount, ATypedCountCanLeadTheOtherWay) {
    InputRig down(3);
    down.edit(countBox, "7");
    down.input.spinDown();
    expectCells(down, 6);
    EXPECT_EQ(down.text({Field::spv, 6}), "5.50");

    InputRig up(8);
    up.edit(countBox, "2");
    up.input.spinUp();
    expectCells(up, 3);
    EXPECT_EQ(up.designCase.upl(8), 0.0f);

    InputRig junk(4);
    junk.edit(countBox, "abc");
    junk.input.spinUp(); // 0 + 1
    expectCells(junk, 1);
}

TEST(SpanCount, TheStepItselfReadsWithoutTheCommaRule) {
    InputRig rig(3);
    rig.edit(countBox, "9,5"); // below 10 for the limit, 9 for the step
    rig.input.spinUp();
    expectCells(rig, 10);
    rig.edit(countBox, "10,5");
    rig.calm();
    rig.input.spinUp();
    EXPECT_FALSE(rig.document.dataChanged);
}

struct BadCount {
    const char* text;
    bool up;
    int error;
};

class BadCounts : public ::testing::TestWithParam<BadCount> {};

TEST_P(BadCounts, ChangeNothing) {
    InputRig rig(3);
    rig.edit(countBox, GetParam().text);
    const DesignCase before = rig.designCase;
    const auto step = [&] { GetParam().up ? rig.input.spinUp() : rig.input.spinDown(); };
    EXPECT_EQ(errorOf(step), GetParam().error);
    EXPECT_EQ(rig.designCase, before);
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_EQ(rig.text(countBox), "3") << "screen and record agree";
    EXPECT_EQ(rig.form.returnedTo, countBox);
    EXPECT_TRUE(rig.form.state({Field::spv, 3}).visible);
    EXPECT_FALSE(rig.form.state({Field::spv, 4}).visible);
    rig.input.spinUp();
    expectCells(rig, 4);
}

INSTANTIATE_TEST_SUITE_P(
    Input, BadCounts,
    ::testing::Values(BadCount{"4000", false, errSubscriptOutOfRange},
                      BadCount{"17", false, errSubscriptOutOfRange},
                      BadCount{"12", false, errSubscriptOutOfRange}, BadCount{"40000", false, errOverflow},
                      BadCount{"1e400", false, errOverflow}, BadCount{"1.4", false, errSubscriptOutOfRange},
                      BadCount{"9.5", true, errSubscriptOutOfRange},
                      BadCount{"-5", true, errSubscriptOutOfRange},
                      BadCount{"-1", true, errSubscriptOutOfRange}, BadCount{"-40000", true, errOverflow}));

TEST(SpanCount, HugeCountsAreBeyondTheUpperLimitAndNegativeOnesBelowTheLower) {
    InputRig rig(3);
    const DesignCase before = rig.designCase;
    rig.edit(countBox, "4000");
    rig.input.spinUp();
    rig.edit(countBox, "-5");
    rig.input.spinDown();
    EXPECT_EQ(rig.designCase, before);
    EXPECT_FALSE(rig.document.dataChanged);
}

TEST(SpanCount, ACaseOfMoreThanTenSpansIsCountedDown) {
    InputRig rig(12);
    rig.input.spinUp();
    EXPECT_EQ(rig.designCase.nfack, 12);
    EXPECT_FALSE(rig.document.dataChanged);
    rig.input.spinDown();
    EXPECT_EQ(rig.designCase.nfack, 11);
    EXPECT_EQ(rig.designCase.upl(11), 0.0f);
    rig.input.spinDown();
    expectCells(rig, 10);
    rig.input.spinDown();
    expectCells(rig, 9);
}

TEST(SpanCount, AVariableLoadFixedByTheCategoryStaysLockedInANewSpan) {
    InputRig rig(2);
    rig.choose(Field::lokt, 3);
    rig.input.spinUp();
    EXPECT_FALSE(rig.form.state({Field::flast, 3}).enabled);
    EXPECT_EQ(rig.text({Field::flast, 3}), "3.00");
}

TEST(SpanCount, AnErrorOfTheSketchLeavesTheNewCountWhole) {
    InputRig rig(3);
    rig.designCase.spv(4) = 0; // a block without width
    EXPECT_EQ(errorOf([&] { rig.input.spinUp(); }), errOverflow);
    expectCells(rig, 4);
}

TEST(InputForm, ActivatingOrClickingItTakesTheFocusToTheTitle) {
    InputRig rig;
    rig.type({Field::spv, 1}, "6");
    rig.input.focusTitle();
    EXPECT_EQ(rig.form.focused(), (Control{Field::rubrik}));
    EXPECT_EQ(rig.designCase.spv(3), 6.0f);
}

} // namespace
} // namespace varno
