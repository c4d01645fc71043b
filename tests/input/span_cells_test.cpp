#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

struct RowCase {
    Field field;
    SpanArray DesignCase::*values;
    const char* typed;
    const char* shown;
    float stored;
    const char* refresh;
};

class SpanRow : public ::testing::TestWithParam<RowCase> {};

TEST_P(SpanRow, AnEditIsCarriedForwardToTheSpansBehindIt) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    const SpanArray before = rig.designCase.*row.values;
    const std::string first = rig.text({row.field, 1});
    rig.edit({row.field, 2}, row.typed);

    EXPECT_EQ(rig.texts(row.field, 1, 3), (Texts{first, row.shown, row.shown}));
    const SpanArray& after = rig.designCase.*row.values;
    EXPECT_EQ(after(1), before(1));
    EXPECT_EQ(after(2), row.stored);
    EXPECT_EQ(after(3), row.stored);
    EXPECT_EQ(after(4), before(4));
    EXPECT_EQ(rig.sketch.asked, Texts{row.refresh});
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
}

TEST_P(SpanRow, TheFirstSpanSetsAllAndTheLastOnlyItself) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    rig.edit({row.field, 1}, row.typed);
    EXPECT_EQ(rig.texts(row.field, 1, 3), (Texts{row.shown, row.shown, row.shown}));
    rig.edit({row.field, 3}, "9");
    EXPECT_EQ(rig.text({row.field, 2}), row.shown);
    EXPECT_EQ((rig.designCase.*row.values)(3), 9.0f);
    EXPECT_EQ((rig.designCase.*row.values)(2), row.stored);
}

TEST_P(SpanRow, TheSameValueIsOnlyNormalised) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    rig.edit({row.field, 3}, "8");
    rig.edit({row.field, 2}, "4");
    const std::string normal = rig.text({row.field, 2});
    rig.edit({row.field, 3}, "8");
    rig.calm();
    rig.edit({row.field, 2}, " 4 ");
    EXPECT_EQ(rig.text({row.field, 2}), normal);
    EXPECT_EQ((rig.designCase.*row.values)(3), 8.0f);
    EXPECT_TRUE(rig.sketch.asked.empty());
    EXPECT_TRUE(rig.document.dataChanged); // the text did change
}

TEST_P(SpanRow, TypingAloneMarksTheCase) {
    InputRig rig(2);
    rig.type({GetParam().field, 1}, "7");
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    EXPECT_TRUE(rig.sketch.asked.empty());
}

TEST_P(SpanRow, AVisitChangesNothing) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    // More decimals than the field shows, as a file may hold, and a value that no single is.
    (rig.designCase.*row.values)(1) = 5.30449f;
    (rig.designCase.*row.values)(2) = 5.3f;
    rig.show();
    const DesignCase before = rig.designCase;
    rig.visit({row.field, 1});
    rig.visit({row.field, 2});
    EXPECT_EQ(rig.designCase, before);
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.sketch.asked.empty());
}

TEST_P(SpanRow, RetypingAStoredSingleCopiesNothingForward) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    rig.edit({row.field, 3}, "7");
    rig.edit({row.field, 2}, "5.3");
    rig.edit({row.field, 3}, "7");
    rig.calm();
    rig.edit({row.field, 2}, "5,3"); // 5.3 is no single: a double comparison would call it another value
    EXPECT_EQ((rig.designCase.*row.values)(3), 7.0f);
    EXPECT_TRUE(rig.sketch.asked.empty());
}

TEST_P(SpanRow, ATextTooLargeForASingleStopsTheEvent) {
    const RowCase& row = GetParam();
    InputRig rig(3);
    const DesignCase before = rig.designCase;
    const std::string stored = rig.text({row.field, 1});
    for (const char* text : {"1e39", "-4e38", "1e999"}) {
        rig.type({row.field, 1}, text);
        EXPECT_EQ(errorOf([&] { rig.input.lostFocus({row.field, 1}); }), errOverflow);
        EXPECT_EQ(rig.designCase, before);
        EXPECT_EQ(rig.text({row.field, 1}), stored);
    }
}

TEST_P(SpanRow, JunkIsZeroAndNegativesAreAccepted) {
    const RowCase& row = GetParam();
    InputRig rig(1);
    rig.designCase.konsv = 20; // so that the sketch can be drawn
    for (const char* junk : {"abc", "", "-", ".", "x5"}) {
        rig.type({row.field, 1}, "3");
        rig.input.lostFocus({row.field, 1});
        rig.type({row.field, 1}, junk);
        rig.input.lostFocus({row.field, 1});
        EXPECT_EQ((rig.designCase.*row.values)(1), 0.0f) << junk;
    }
    rig.edit({row.field, 1}, "-3");
    EXPECT_EQ((rig.designCase.*row.values)(1), -3.0f);
    EXPECT_EQ(rig.text({row.field, 1}).front(), '-');
}

INSTANTIATE_TEST_SUITE_P(
    Input, SpanRow,
    ::testing::Values(RowCase{Field::spv, &DesignCase::spv, "6,5", "6.50", 6.5f, "full"},
                      RowCase{Field::plast, &DesignCase::plast, "3.456", "3.46", 3.46f, "full"},
                      RowCase{Field::flast, &DesignCase::flast, " 4,25 kN", "4.25", 4.25f, "full"},
                      RowCase{Field::ptjl, &DesignCase::ptjl, "0,25", "0.250", 0.25f, "geometry"}));

TEST(SupportCells, AnEditIsCarriedForwardToTheInnerSupports) {
    InputRig rig(5);
    rig.edit({Field::upl, 2}, "0.3");
    EXPECT_EQ(rig.texts(Field::upl, 0, 5), (Texts{"0.000", "0.100", "0.300", "0.300", "0.300", "0.000"}));
    const float widths[] = {0, 0.1f, 0.3f, 0.3f, 0.3f, 0};
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(rig.designCase.upl(i), widths[i]) << i;
    EXPECT_FALSE(rig.form.state({Field::upl, 5}).enabled);
    EXPECT_TRUE(rig.sketch.asked.empty());
    EXPECT_TRUE(rig.document.dataChanged);
}

TEST(SupportCells, TheSameWidthIsOnlyNormalised) {
    InputRig rig(5);
    rig.edit({Field::upl, 3}, "0.2");
    rig.edit({Field::upl, 2}, "0,1");
    EXPECT_EQ(rig.texts(Field::upl, 1, 5), (Texts{"0.100", "0.100", "0.200", "0.200", "0.000"}));
}

TEST(SupportCells, TheEndSupportsStayZero) {
    InputRig rig(4);
    EXPECT_FALSE(rig.form.state({Field::upl, 0}).enabled);
    EXPECT_FALSE(rig.form.state({Field::upl, 4}).enabled);
    const DesignCase before = rig.designCase;
    rig.edit({Field::upl, 0}, "0.5");
    rig.edit({Field::upl, 4}, "0.5");
    EXPECT_EQ(rig.designCase, before);
    EXPECT_EQ(rig.text({Field::upl, 0}), "0.000");
    EXPECT_EQ(rig.text({Field::upl, 4}), "0.000");
}

TEST(SupportCells, AVisitChangesNothing) {
    InputRig rig(4);
    rig.designCase.upl(2) = 0.12345f;
    rig.show();
    const DesignCase before = rig.designCase;
    rig.visit({Field::upl, 2});
    EXPECT_EQ(rig.designCase, before);
    EXPECT_FALSE(rig.document.dataChanged);
    rig.type({Field::upl, 2}, "1e39");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({Field::upl, 2}); }), errOverflow);
    EXPECT_EQ(rig.designCase, before);
}

class Cantilever : public ::testing::TestWithParam<Field> {};

TEST_P(Cantilever, IsStoredAsTypedAndShownWithTwoDecimals) {
    InputRig rig;
    float DesignCase::*length = GetParam() == Field::konsv ? &DesignCase::konsv : &DesignCase::konsh;
    EXPECT_EQ(rig.text({GetParam()}), "0.00");
    rig.edit({GetParam()}, "1,256");
    EXPECT_EQ(rig.designCase.*length, 1.256f);
    EXPECT_EQ(rig.text({GetParam()}), "1.26");
    EXPECT_EQ(rig.sketch.asked, Texts{"full"});
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);

    rig.calm();
    rig.visit({GetParam()});
    EXPECT_EQ(rig.designCase.*length, 1.256f);
    rig.edit({GetParam()}, "1.256");
    EXPECT_EQ(rig.text({GetParam()}), "1.26");
    EXPECT_TRUE(rig.sketch.asked.empty());
    // Typed over its own shown text it counts as typed.
    rig.edit({GetParam()}, "1.26");
    EXPECT_EQ(rig.designCase.*length, 1.26f);
    EXPECT_EQ(rig.sketch.asked, Texts{"full"});

    rig.type({GetParam()}, "1e39");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({GetParam()}); }), errOverflow);
    EXPECT_EQ(rig.designCase.*length, 1.26f);
    EXPECT_EQ(rig.text({GetParam()}), "1.26");
}

TEST_P(Cantilever, WhatASingleMakesOfTheTextIsWhatIsShown) {
    // The text is just below 1.005, its single is shown as 1.005: were the box to show 1.00, going through it
    // again would change the length.
    InputRig rig;
    float DesignCase::*length = GetParam() == Field::konsv ? &DesignCase::konsv : &DesignCase::konsh;
    rig.edit({GetParam()}, "1.00499999999");
    EXPECT_EQ(rig.text({GetParam()}), "1.01");
    rig.calm();
    rig.visit({GetParam()});
    EXPECT_EQ(rig.designCase.*length, 1.005f);
    EXPECT_TRUE(rig.sketch.asked.empty());
}

INSTANTIATE_TEST_SUITE_P(Input, Cantilever, ::testing::Values(Field::konsv, Field::konsh));

TEST(SpanCells, AnErrorOfTheSketchComesAfterEverythingIsStoredAndShown) {
    InputRig rig(2);
    rig.type({Field::spv, 1}, "0");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({Field::spv, 1}); }), errDivisionByZero);
    EXPECT_EQ(rig.texts(Field::spv, 1, 2), (Texts{"0.00", "0.00"}));
    EXPECT_EQ(rig.designCase.spv(2), 0.0f);
    rig.type({Field::konsv}, "1,5");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({Field::konsv}); }), errOverflow); // a block without width
    EXPECT_EQ(rig.text({Field::konsv}), "1.50");
    rig.type({Field::spv, 1}, "4");
    rig.input.lostFocus({Field::spv, 1});
    EXPECT_EQ(rig.slab.totalLength(), 9.5f);
}

TEST(SpanCells, ACaseOfMoreSpansThanBoxesIsEditedToItsEnd) {
    InputRig rig(12);
    rig.edit({Field::spv, 9}, "4");
    EXPECT_EQ(rig.designCase.spv(12), 4.0f);
    EXPECT_EQ(rig.designCase.spv(8), 5.0f);
    rig.edit({Field::upl, 9}, "0.2");
    EXPECT_EQ(rig.designCase.upl(11), 0.2f);
    EXPECT_EQ(rig.designCase.upl(12), 0.0f);
    // Nothing was shown in boxes that are not there.
    EXPECT_EQ(rig.text({Field::spv, 11}), "");
    EXPECT_EQ(rig.text({Field::upl, 11}), "");

    rig.designCase.nfack = 17; // what a damaged file leaves behind
    rig.type({Field::spv, 1}, "3");
    EXPECT_EQ(errorOf([&] { rig.input.lostFocus({Field::spv, 1}); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.designCase.spv(1), 5.0f);
}

TEST(SpanCells, TextsReadRightWhateverSignsTheDisplayHas) {
    for (const char* decimal : {".", ",", "'"}) {
        const NumberLocale locale{decimal, "."};
        InputRig rig(2, locale);
        const std::string five = std::string("5") + decimal + "00";
        EXPECT_EQ(rig.text({Field::spv, 1}), five);
        rig.edit({Field::spv, 1}, "6.25");
        EXPECT_EQ(rig.designCase.spv(2), 6.25f);
        EXPECT_EQ(rig.text({Field::spv, 2}), std::string("6") + decimal + "25");
        rig.edit({Field::spv, 1}, "7,25");
        EXPECT_EQ(rig.designCase.spv(2), 7.25f);
        rig.edit({Field::upl, 1}, "0,256");
        rig.visit({Field::spv, 1});
        rig.visit({Field::spv, 2});
        rig.visit({Field::upl, 1});
        EXPECT_EQ(rig.designCase.spv(1), 7.25f);
        EXPECT_EQ(rig.designCase.upl(1), 0.256f);
    }
}

} // namespace
} // namespace varno
