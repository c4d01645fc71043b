#include <gtest/gtest.h>

#include "input/input_rig.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

class LeftList : public ::testing::TestWithParam<ChoiceField> {};

TEST_P(LeftList, StoresItsPositionPlusOneWhenItIsLeft) {
    const ChoiceField& list = GetParam();
    InputRig rig;
    rig.designCase.loadCode = 1;
    for (int row = 0; row < list.count(); ++row) {
        rig.form.focus({list.field});
        rig.form.selectRow(list.field, row);
        rig.input.clicked({list.field});
        if (row != 1) {
            EXPECT_NE(rig.designCase.*list.place, row + 1);
        }
        rig.form.focus({Field::rubrik});
        EXPECT_EQ(rig.designCase.*list.place, row + 1);
    }
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
}

TEST_P(LeftList, AVisitMarksNothing) {
    InputRig rig;
    const DesignCase before = rig.designCase;
    rig.visit({GetParam().field});
    EXPECT_EQ(rig.designCase, before);
    EXPECT_FALSE(rig.document.dataChanged);
}

TEST_P(LeftList, ANumberWithoutARowStaysUntilTheUserChooses) {
    const ChoiceField& list = GetParam();
    InputRig rig;
    rig.designCase.loadCode = 1;
    rig.designCase.*list.place = 12;
    rig.show();
    EXPECT_EQ(rig.form.selectedRow(list.field), -1);
    rig.visit({list.field});
    EXPECT_EQ(rig.designCase.*list.place, 12);
    rig.form.selectRow(list.field, 0);
    rig.visit({list.field});
    EXPECT_EQ(rig.designCase.*list.place, 1);
    rig.form.selectRow(list.field, -1);
    rig.visit({list.field});
    EXPECT_EQ(rig.designCase.*list.place, 0);
}

INSTANTIATE_TEST_SUITE_P(Input, LeftList,
                         ::testing::Values(*choiceField(Field::btg), *choiceField(Field::aok),
                                           *choiceField(Field::dok), *choiceField(Field::auk),
                                           *choiceField(Field::duk)),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ConcreteClass, IsStoredUnderTheSwedishRulesOnly) {
    InputRig rig;
    for (std::int16_t ruleSet = 0; ruleSet <= 6; ++ruleSet) {
        rig.designCase.loadCode = ruleSet;
        rig.designCase.btg = 2;
        rig.form.selectRow(Field::btg, 4);
        rig.visit({Field::btg});
        EXPECT_EQ(rig.designCase.btg, ruleSet == 1 ? 5 : 2) << ruleSet;
    }
}

class ClickedOptions : public ::testing::TestWithParam<ChoiceField> {};

TEST_P(ClickedOptions, AreStoredAtOnce) {
    const ChoiceField& group = GetParam();
    InputRig rig;
    for (int option = group.count(); option >= 1; --option) {
        rig.calm();
        rig.input.clicked({group.field, option});
        EXPECT_EQ(rig.designCase.*group.place, option);
        EXPECT_TRUE(rig.document.dataChanged);
        EXPECT_FALSE(rig.window.diagram);
    }
    EXPECT_TRUE(rig.sketch.asked.empty());
    EXPECT_EQ(errorOf([&] { rig.input.clicked({group.field, 0}); }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { rig.input.clicked({group.field, group.count() + 1}); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.designCase.*group.place, 1);
}

INSTANTIATE_TEST_SUITE_P(Input, ClickedOptions,
                         ::testing::Values(*choiceField(Field::lastkomb), *choiceField(Field::brukskomb),
                                           *choiceField(Field::brandb), *choiceField(Field::kutak)),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Curtailment, OnlyATickCounts) {
    InputRig rig;
    rig.input.clicked({Field::kavko, 1});
    EXPECT_EQ(rig.designCase.kavko, 1);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
    rig.input.clicked({Field::kavko, 2});
    EXPECT_EQ(rig.designCase.kavko, 0);
    rig.input.clicked({Field::kavko, 1});
    rig.input.clicked({Field::kavko, 0});
    EXPECT_EQ(rig.designCase.kavko, 0);
}

Texts fireCaptions(const InputRig& rig) {
    Texts captions;
    for (int option = 1; option <= 4; ++option)
        captions.push_back(rig.form.state({Field::brandb, option}).caption);
    return captions;
}

const Texts resistance{" REI  30 ", " REI  60 ", " REI  90 ", " REI 120 "};
const Texts fireLoad{"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"};

TEST(FireClass, TheOneRowGivesTheResistanceCaptions) {
    InputRig rig;
    rig.designCase.brandk = 2;
    rig.show();
    ASSERT_EQ(rig.form.rows(Field::brandk), Texts{"Brandteknisk klass"});
    rig.form.focus({Field::brandk});
    rig.form.selectRow(Field::brandk, 0);
    rig.calm();
    rig.input.clicked({Field::brandk});
    EXPECT_EQ(rig.designCase.brandk, 1);
    EXPECT_EQ(fireCaptions(rig), resistance);
    EXPECT_FALSE(rig.form.state({Field::brandb, 4}).visible);
    EXPECT_FALSE(rig.document.dataChanged); // the list's change rule does that
}

TEST(FireClass, ASecondRowWouldGiveTheFireLoadCaptions) {
    InputRig rig;
    rig.form.addRow(Field::brandk, "Brandbelastning");
    rig.choose(Field::brandk, 1);
    EXPECT_EQ(rig.designCase.brandk, 2);
    EXPECT_EQ(fireCaptions(rig), fireLoad);
    EXPECT_TRUE(rig.form.state({Field::brandb, 4}).visible);
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);

    // A choice keeps its number under the other meaning, also the one that is hidden then.
    rig.input.clicked({Field::brandb, 4});
    rig.choose(Field::brandk, 0);
    EXPECT_EQ(rig.designCase.brandb, 4);
    EXPECT_FALSE(rig.form.state({Field::brandb, 4}).visible);
    EXPECT_EQ(fireCaptions(rig), resistance);
}

} // namespace
} // namespace varno
