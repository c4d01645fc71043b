#include <gtest/gtest.h>

#include "controls/rule_sets.h"
#include "input/input_rig.h"
#include "model/reference_tables.h"

namespace varno {
namespace {

using varno::testing::errorOf;
using varno::testing::InputRig;
using varno::testing::Texts;

constexpr int lastFlag = flagCount - 1; // a click on it leads to the Swedish rules
constexpr std::array fiveFactors{Field::lambdaG, Field::ksi, Field::lambdaQ, Field::psi0, Field::psi1};

void expectRuleSet(const InputRig& rig, int ruleSet, int flag) {
    EXPECT_EQ(rig.designCase.loadCode, ruleSet);
    EXPECT_EQ(rig.window.flag, flag);
    for (const RuleSet& rules : ruleSets)
        EXPECT_EQ(rig.form.groupVisible(rules.classGroup), rules.number == ruleSet) << rules.groupName;
    for (const Field factor : fiveFactors)
        EXPECT_EQ(rig.form.state({factor}).enabled, ruleSet == 6);
    EXPECT_EQ(rig.form.option(ruleSetWith(&RuleSet::number, ruleSet)->classGroup),
              rig.designCase.safetyClass(ruleSet));
    EXPECT_EQ(rig.form.state({Field::loadFrame}).caption,
              ruleSet == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
    const int category = rig.designCase.lokt;
    EXPECT_EQ(rig.text({Field::lambdaG}), formatNumber(*rig.designCase.lambdaG(ruleSet), "#0.00"));
    EXPECT_EQ(rig.text({Field::ksi}), formatNumber(*rig.designCase.ksi(ruleSet), "#0.00"));
    EXPECT_EQ(rig.text({Field::lambdaQ}), formatNumber(*rig.designCase.lambdaQ(ruleSet), "#0.00"));
    EXPECT_EQ(rig.text({Field::psi0}), formatNumber(*rig.designCase.psi0(ruleSet, category), "#0.00"));
    EXPECT_EQ(rig.text({Field::psi1}), formatNumber(*rig.designCase.psi1(ruleSet, category), "#0.00"));
    EXPECT_EQ(rig.text({Field::psi2}), formatNumber(*rig.designCase.psi2(ruleSet, category), "#0.00"));
}

TEST(Flag, GoesRoundTheRuleSets) {
    InputRig rig;
    rig.designCase.loadCode = 1;
    rig.show();
    const int ruleSets[] = {3, 5, 4, 2, 6, 1};
    for (int flag = 1; flag <= lastFlag; ++flag) {
        ASSERT_EQ(rig.window.flag, flag);
        rig.calm();
        rig.input.flagClicked(flag);
        expectRuleSet(rig, ruleSets[flag - 1], flag % lastFlag + 1);
        EXPECT_TRUE(rig.document.dataChanged);
        EXPECT_TRUE(rig.sketch.asked.empty());
    }
}

TEST(Flag, TheNeutralPictureLeadsToTheSwedishRules) {
    InputRig rig;
    rig.designCase.loadCode = 0;
    rig.show();
    ASSERT_EQ(rig.window.flag, 0);
    rig.input.flagClicked(0);
    expectRuleSet(rig, 1, 1);
}

TEST(Flag, LoadsAndListsAreLeftAlone) {
    InputRig rig;
    rig.edit({Field::flast, 1}, "3.3");
    const DesignCase before = rig.designCase;
    rig.input.flagClicked(1);
    EXPECT_EQ(rig.designCase.flast, before.flast);
    EXPECT_EQ(rig.designCase.lokt, before.lokt);
    EXPECT_EQ(rig.designCase.btg, before.btg);
    EXPECT_EQ(rig.text({Field::flast, 3}), "3.30");
}

TEST(Flag, Psi2KeepsItsState) {
    for (const bool enabled : {false, true}) {
        InputRig rig;
        rig.form.setEnabled({Field::psi2}, enabled);
        for (int flag = 1; flag <= 6; ++flag) {
            rig.input.flagClicked(flag);
            EXPECT_EQ(rig.form.state({Field::psi2}).enabled, enabled);
        }
    }
}

TEST(Flag, AFactorBeingTypedBelongsToTheRuleSetThatIsLeft) {
    InputRig rig; // rule set 6
    rig.type({Field::lambdaG}, "1,4");
    rig.input.flagClicked(1);
    EXPECT_EQ(rig.designCase.lambdaG(6), 1.4);
    EXPECT_EQ(rig.designCase.lambdaG(3), 1.35);
    EXPECT_EQ(rig.text({Field::lambdaG}), "1.35");
}

TEST(Flag, EveryRuleSetKeepsItsFactors) {
    InputRig rig;
    rig.edit({Field::lambdaQ}, "1,7");
    for (int flag = 6, turn = 0; turn < lastFlag; ++turn, flag = flag % lastFlag + 1) {
        rig.input.flagClicked(flag);
        EXPECT_EQ(rig.text({Field::lambdaQ}), turn == lastFlag - 1 ? "1.70" : "1.50");
    }
}

TEST(Flag, ACategoryOutsideTheTablesStopsTheEvent) {
    InputRig rig;
    rig.designCase.lokt = 10;
    const DesignCase before = rig.designCase;
    EXPECT_EQ(errorOf([&] { rig.input.flagClicked(2); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.designCase, before);
}

TEST(ClassOption, AFreshCaseStartsAtTheSecondClassWhereTheChoiceIsKept) {
    InputRig rig;
    for (int i = 0; i <= 6; ++i)
        rig.designCase.safetyClass(i) = 0;
    for (int flag = 1; flag <= 6; ++flag)
        rig.input.flagClicked(flag);
    const int expected[] = {2, 1, 2, 2, 2, 1};
    for (int ruleSet = 1; ruleSet <= 6; ++ruleSet) {
        EXPECT_EQ(rig.designCase.safetyClass(ruleSet), expected[ruleSet - 1]) << ruleSet;
        EXPECT_EQ(rig.form.option(ruleSetWith(&RuleSet::number, ruleSet)->classGroup), expected[ruleSet - 1])
            << ruleSet;
    }
}

TEST(ClassOption, AChoiceComesBackButForSetsTwoAndSix) {
    InputRig rig;
    for (int i = 1; i <= 6; ++i)
        rig.designCase.safetyClass(i) = 3;
    for (int flag = 1; flag <= 6; ++flag)
        rig.input.flagClicked(flag);
    for (int ruleSet = 1; ruleSet <= 6; ++ruleSet) {
        EXPECT_EQ(rig.designCase.safetyClass(ruleSet), ruleSet == 2 || ruleSet == 6 ? 1 : 3);
    }
}

TEST(ClassOption, AClickWritesTheElementOfItsGroup) {
    for (const RuleSet& rules : ruleSets) {
        InputRig rig;
        DesignCase expected = rig.designCase;
        if (rules.classWritten != 0) expected.safetyClass(rules.classWritten) = 3;
        rig.input.clicked({rules.classGroup, 3});
        EXPECT_EQ(rig.designCase, expected) << rules.groupName;
        EXPECT_EQ(rig.document.dataChanged, rules.classGroup != Field::shkleu) << rules.groupName;
        EXPECT_TRUE(rig.window.diagram) << rules.groupName;
    }
    InputRig rig;
    EXPECT_EQ(errorOf([&] { rig.input.clicked({Field::shkl, 4}); }), errSubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { rig.input.clicked({Field::shkl, 0}); }), errSubscriptOutOfRange);
}

TEST(ClassOption, AChoiceUnderSetTwoShowsUnderSetFive) {
    InputRig rig;
    rig.designCase.safetyClass(2) = 3;
    rig.input.flagClicked(4); // set 2
    EXPECT_EQ(rig.form.option(Field::shklpl), 1);
    rig.input.clicked({Field::shklpl, 2});
    EXPECT_EQ(rig.designCase.safetyClass(5), 2);
    EXPECT_EQ(rig.designCase.safetyClass(2), 1);
    rig.input.flagClicked(2); // set 5
    EXPECT_EQ(rig.form.option(Field::shkldk), 2);
}

TEST(SwedishRules, AreReachedFromAnywhere) {
    for (int flag = 1; flag <= 5; ++flag) {
        InputRig rig;
        rig.input.flagClicked(flag);
        rig.calm();
        rig.input.switchToSwedishRules();
        expectRuleSet(rig, 1, 1);
        EXPECT_TRUE(rig.document.dataChanged);
        EXPECT_TRUE(rig.sketch.asked.empty());
    }
}

TEST(SwedishRules, RefillTheListsAndRestoreTheirRows) {
    InputRig rig;
    rig.designCase.lokt = 3;
    rig.designCase.aok = 3;
    rig.designCase.auk = 1;
    rig.designCase.btg = 9;
    for (const Field list : {Field::lokt, Field::btg, Field::aok, Field::auk})
        rig.form.clearList(list);
    rig.input.flagClicked(lastFlag);
    EXPECT_EQ(rig.form.rows(Field::lokt), Texts(loadCategories.begin(), loadCategories.end()));
    EXPECT_EQ(rig.form.rows(Field::btg), Texts(concreteClasses.begin(), concreteClasses.end()));
    EXPECT_EQ(rig.form.rows(Field::aok), Texts(steelGrades.begin(), steelGrades.end()));
    EXPECT_EQ(rig.form.rows(Field::auk), Texts(steelGrades.begin(), steelGrades.end()));
    EXPECT_EQ(rig.form.selectedRow(Field::lokt), 3);
    EXPECT_EQ(rig.form.selectedRow(Field::aok), 2);
    EXPECT_EQ(rig.form.selectedRow(Field::auk), 0);
    EXPECT_EQ(rig.form.selectedRow(Field::btg), 8);
}

TEST(SwedishRules, AConcreteClassChosenUnderAnotherSetIsDropped) {
    InputRig rig;
    rig.form.focus({Field::btg});
    rig.form.selectRow(Field::btg, 6);
    rig.form.focus({Field::rubrik});
    EXPECT_EQ(rig.designCase.btg, 2);
    rig.input.flagClicked(lastFlag);
    EXPECT_EQ(rig.form.selectedRow(Field::btg), 1);
}

TEST(LoadCategory, WritesAllTenVariableLoadsAndLocksThem) {
    InputRig rig(2);
    rig.choose(Field::lokt, 3);
    EXPECT_EQ(rig.designCase.lokt, 3);
    for (int span = 1; span <= 10; ++span) {
        EXPECT_EQ(rig.designCase.flast(span), 3.0f);
        EXPECT_EQ(rig.text({Field::flast, span}), "3.00");
        EXPECT_FALSE(rig.form.state({Field::flast, span}).enabled);
    }
    EXPECT_EQ(rig.text({Field::psi1}), "0.70");
    EXPECT_EQ(rig.text({Field::psi2}), "0.60");
    EXPECT_TRUE(rig.sketch.asked.empty());
    EXPECT_TRUE(rig.document.dataChanged);
    EXPECT_FALSE(rig.window.diagram);
}

TEST(LoadCategory, NoughtOverwritesTheLoadsBeforeItUnlocksThem) {
    InputRig rig(2);
    rig.choose(Field::lokt, 5);
    rig.choose(Field::lokt, 0);
    for (int span = 1; span <= 10; ++span) {
        EXPECT_EQ(rig.designCase.flast(span), 2.0f);
        EXPECT_EQ(rig.text({Field::flast, span}), "2.00");
        EXPECT_TRUE(rig.form.state({Field::flast, span}).enabled);
    }
    rig.edit({Field::flast, 1}, "7");
    rig.choose(Field::lokt, 0);
    EXPECT_EQ(rig.designCase.flast(1), 2.0f);
}

TEST(LoadCategory, TheLoadsComeFromTheRuleSet) {
    for (int ruleSet = 0; ruleSet <= 6; ++ruleSet) {
        for (int category = 0; category <= 9; ++category) {
            InputRig rig(1);
            rig.designCase.loadCode = static_cast<std::int16_t>(ruleSet);
            rig.choose(Field::lokt, category);
            EXPECT_EQ(rig.designCase.flast(7), loadFactorTable(ruleSet, category));
        }
    }
}

TEST(LoadCategory, TheClickItselfDoesNotMark) {
    InputRig rig(2);
    rig.choose(Field::lokt, 3);
    rig.calm();
    rig.input.clicked({Field::lokt});
    EXPECT_FALSE(rig.document.dataChanged);
    EXPECT_TRUE(rig.window.diagram);
}

TEST(LoadCategory, NoRowIsOutsideTheTables) {
    InputRig rig(2);
    rig.form.selectRow(Field::lokt, -1);
    const DesignCase before = rig.designCase;
    EXPECT_EQ(errorOf([&] { rig.input.clicked({Field::lokt}); }), errSubscriptOutOfRange);
    EXPECT_EQ(rig.designCase, before);
    EXPECT_TRUE(rig.form.state({Field::flast, 1}).enabled);
}

} // namespace
} // namespace varno
